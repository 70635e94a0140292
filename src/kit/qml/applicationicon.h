#pragma once

#include "painteditem.h"

/// The icon that the application has given the kit, as large as the item.
class ApplicationIcon : public PaintedItem
{
    Q_OBJECT
    QML_ELEMENT
public:
    using PaintedItem::PaintedItem;

    void paint(QPainter *painter) override;
};
