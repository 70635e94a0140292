#pragma once

#include "prepareditem.h"

#include "kit/softblur.h"

#include <QColor>

/// The soft shadow, or glow, of a rounded rectangle as large as this item.
///
/// It spreads `blur` beyond the item on all sides and takes no clicks. Shown as a nine-patch of a
/// small picture that was blurred once: what it costs to show grows with its area, what it costs to
/// make doesn't. It looks the same with and without a graphics processor.
class SoftShadow : public PreparedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER m_color WRITE setColor NOTIFY lookChanged)
    /// Corner radius of the shape that casts the shadow.
    Q_PROPERTY(qreal radius MEMBER m_radius WRITE setRadius NOTIFY lookChanged)
    /// Reach of the blur, at least 0.
    Q_PROPERTY(qreal blur MEMBER m_blur WRITE setBlur NOTIFY lookChanged)
public:
    using PreparedItem::PreparedItem;

    void setColor(const QColor &color) { set(m_color, color); }
    void setRadius(qreal radius) { set(m_radius, radius); }
    void setBlur(qreal blur) { set(m_blur, blur); }

protected:
    void prepare() override;
    void settle() override;
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    [[nodiscard]] bool isSeen() const;
    [[nodiscard]] std::shared_future<Painting::ShadowPatch> blurAsync() const;

    std::shared_future<Painting::ShadowPatch> m_patch; ///< Until updatePaintNode() takes it.
    QColor m_color = Qt::black;
    qreal m_radius = 0;
    qreal m_blur = 0;
};
