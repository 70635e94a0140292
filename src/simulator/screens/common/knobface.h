#pragma once

#include "kit/qml/painteditem.h"

/// A round knob without its lettering: knurled metal around a black disc. It doesn't turn.
class KnobFace : public PaintedItem
{
    Q_OBJECT
    QML_ELEMENT
public:
    using PaintedItem::PaintedItem;

    void paint(QPainter *painter) override;
};
