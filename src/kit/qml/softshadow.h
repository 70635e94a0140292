#pragma once

#include "prepareditem.h"

#include "kit/softblur.h"

#include <QColor>

/// The soft shadow, or glow, of a rounded rectangle as large as this item.
///
/// It spreads `blur` beyond the item on all sides and takes no clicks. Drawn as a nine-patch of a
/// small picture that was blurred once, so it costs the same at any size and looks the same with
/// and without a graphics processor.
class SoftShadow : public PreparedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY lookChanged)
    Q_PROPERTY(qreal radius READ radius WRITE setRadius NOTIFY lookChanged)
    Q_PROPERTY(qreal blur READ blur WRITE setBlur NOTIFY lookChanged)
public:
    explicit SoftShadow(QQuickItem *parent = nullptr);

    [[nodiscard]] QColor color() const { return m_color; }
    void setColor(const QColor &color);
    /// Corner radius of the shape that casts the shadow.
    [[nodiscard]] qreal radius() const { return m_radius; }
    void setRadius(qreal radius);
    /// Reach of the blur, at least 0.
    [[nodiscard]] qreal blur() const { return m_blur; }
    void setBlur(qreal blur);

Q_SIGNALS:
    void lookChanged();

protected:
    void prepare() override;
    void settle() override;
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    void look();
    [[nodiscard]] bool isSeen() const;
    [[nodiscard]] std::shared_future<ShadowPatch> startedPatch() const;

    std::shared_future<ShadowPatch> m_patch; ///< Until updatePaintNode() takes it.
    QColor m_color = Qt::black;
    qreal m_radius = 0;
    qreal m_blur = 0;
};
