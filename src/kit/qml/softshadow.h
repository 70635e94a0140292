#pragma once

#include "ninepatchitem.h"

#include <QColor>

/// The soft shadow, or glow, of a rounded rectangle as large as this item.
///
/// It spreads `blur` beyond the item on all sides and takes no clicks. It looks the same with and
/// without a graphics processor.
class SoftShadow : public NinePatchItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER m_color WRITE setColor NOTIFY lookChanged)
    /// Corner radius of the shape that casts the shadow.
    Q_PROPERTY(qreal radius MEMBER m_radius WRITE setRadius NOTIFY lookChanged)
    /// Reach of the blur, at least 0.
    Q_PROPERTY(qreal blur MEMBER m_blur WRITE setBlur NOTIFY lookChanged)
public:
    using NinePatchItem::NinePatchItem;

    void setColor(const QColor &color) { set(m_color, color); }
    void setRadius(qreal radius) { set(m_radius, radius); }
    void setBlur(qreal blur) { set(m_blur, blur); }

protected:
    [[nodiscard]] bool isSeen() const override;
    [[nodiscard]] Painting::NinePatch patchAsync() const override;
    [[nodiscard]] int reach() const override;

private:
    QColor m_color = Qt::black;
    qreal m_radius = 0;
    qreal m_blur = 0;
};
