#pragma once

#include "kit/qml/painteditem.h"

#include <QColor>

/// A triangle that points upward, from the middle of its upper edge to its lower corners, in one
/// ink with a soft glow. The item is larger than the triangle by the reach of the glow on all
/// sides.
class Triangle : public PaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor ink MEMBER m_ink WRITE setInk NOTIFY lookChanged)
    Q_PROPERTY(qreal glow MEMBER m_glow WRITE setGlow NOTIFY lookChanged)
public:
    using PaintedItem::PaintedItem;

    void setInk(const QColor &ink) { set(m_ink, ink); }
    void setGlow(qreal reach) { set(m_glow, reach); }

    void paint(QPainter *painter) override;

private:
    QColor m_ink = Qt::white;
    qreal m_glow = 0;
};
