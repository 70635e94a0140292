#pragma once

#include "camerasurface.h"

/// The display's frame: bezel, inner glow and the sheen of its glass. It lies over the content and
/// takes no clicks; its round opening is what rounds the content's corners.
class DisplayGlass : public CameraSurface
{
    Q_OBJECT
    QML_ELEMENT
public:
    using CameraSurface::CameraSurface;

    void paint(QPainter *painter) override;
};
