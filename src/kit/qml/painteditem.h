// The base of everything that is painted by hand.
#pragma once

#include "prepareditem.h"

#include <QImage>
#include <QRectF>

#include <future>
#include <limits>
#include <vector>

/// An item that is painted in logical coordinates, whatever the size of its picture: that has as
/// many pixels as the item covers on the screen. Without that a magnified interface would show the
/// picture of a small one.
///
/// Not a QQuickPaintedItem: on the software scene graph that one copies each new picture before it
/// paints on it, and paints items that can't be seen.
class PaintedItem : public PreparedItem
{
    Q_OBJECT
    QML_ANONYMOUS
    /// Size of the picture in device pixels. No signal tells of its changes.
    Q_PROPERTY(QSize textureSize READ textureSize)
public:
    using PreparedItem::PreparedItem;

    [[nodiscard]] QSize textureSize() const;

    /// Paints the item as paintAsync() asks for it: edges are smoothed; while the main thread
    /// waits, several others may be here at once.
    virtual void paint(QPainter *painter);

protected:
    void prepare() override;
    void settle() override;
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;

    /// Keeps either side of the texture within so many pixels; a larger item is painted coarser and
    /// magnified. Unlimited by default.
    void limitTexture(int longestSide);

    /// The part where nothing is, or where something opaque covers it: its pixels are neither
    /// painted nor kept, but for those at its edge, since what covers them may be shown up to a
    /// pixel beside its place. None by default.
    [[nodiscard]] virtual QRectF leftOut() const { return {}; }

    /// Starts to paint an item that leaves nothing out, by paint(). Subclasses answer otherwise if
    /// they know the picture already or make it as a whole.
    [[nodiscard]] virtual std::shared_future<QImage> paintAsync();

private:
    struct Part {
        QRect area; ///< In the item's picture.
        std::shared_future<QImage> picture;
    };
    class Node;

    [[nodiscard]] QRect pixelsLeftOut() const;
    [[nodiscard]] std::vector<Part> paintPartsAsync();

    std::vector<Part> m_parts; ///< Until updatePaintNode() takes them.
    int m_longestSide = std::numeric_limits<int>::max();
};
