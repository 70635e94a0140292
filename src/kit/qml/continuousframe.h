#pragma once

#include "painteditem.h"

#include <QColor>

/// What lies around an opening with continuous corners: the corners, and a rim along the opening's
/// edge, inside it. It lies over what can't have round corners itself and takes no clicks.
class ContinuousFrame : public PaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(qreal radius MEMBER m_radius WRITE setRadius NOTIFY lookChanged)
    /// Of the corners: what the whole stands on.
    Q_PROPERTY(QColor ground MEMBER m_ground WRITE setGround NOTIFY lookChanged)
    Q_PROPERTY(QColor rim MEMBER m_rim WRITE setRim NOTIFY lookChanged)
    Q_PROPERTY(qreal rimWidth MEMBER m_rimWidth WRITE setRimWidth NOTIFY lookChanged)
public:
    using PaintedItem::PaintedItem;

    void setRadius(qreal radius) { set(m_radius, radius); }
    void setGround(const QColor &ground) { set(m_ground, ground); }
    void setRim(const QColor &rim) { set(m_rim, rim); }
    void setRimWidth(qreal width) { set(m_rimWidth, width); }

    void paint(QPainter *painter) override;

protected:
    [[nodiscard]] QRectF leftOut() const override;

private:
    qreal m_radius = 0;
    qreal m_rimWidth = 0;
    QColor m_ground = Qt::transparent;
    QColor m_rim = Qt::transparent;
};
