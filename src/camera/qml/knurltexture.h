#pragma once

#include "kit/qml/painteditem.h"

/// Knurled metal over the whole item.
class KnurlTexture : public PaintedItem
{
    Q_OBJECT
    QML_ELEMENT
public:
    using PaintedItem::PaintedItem;

    void paint(QPainter *painter) override;
};
