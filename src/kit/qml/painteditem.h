// The base of everything that is painted by hand.
#pragma once

#include "prepareditem.h"

#include <QImage>

#include <future>
#include <limits>

/// An item whose picture has as many pixels as it covers on the screen: the interface zoom times
/// the window's device pixel ratio. Without that a magnified interface would show the picture of a
/// small one. Subclasses paint in logical coordinates, whatever the picture's size.
///
/// Not a QQuickPaintedItem: on the software scene graph that one copies each new picture before it
/// paints on it, and paints items that can't be seen: half the memory that a start touched.
class PaintedItem : public PreparedItem
{
    Q_OBJECT
    QML_ANONYMOUS
    /// Size of the picture in device pixels.
    Q_PROPERTY(QSize textureSize READ textureSize NOTIFY textureSizeChanged)
public:
    explicit PaintedItem(QQuickItem *parent = nullptr);

    [[nodiscard]] QSize textureSize() const;

    /// Paints the item as startPicture() asks for it: edges are smoothed; while the main thread
    /// waits, several others may be here at once.
    virtual void paint(QPainter *painter);

Q_SIGNALS:
    void textureSizeChanged();

protected:
    void prepare() override;
    void settle() override;
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

    /// Keeps either side of the texture within so many pixels; a larger item is painted coarser and
    /// magnified. Unlimited by default.
    void limitTexture(int longestSide);

    /// Starts to paint the item by paint(). Subclasses answer otherwise if they know the picture
    /// already or make it as a whole.
    [[nodiscard]] virtual std::shared_future<QImage> startedPicture();

    /// Stores `value` in `field` and repaints if that changes anything; true if it did. The
    /// caller emits its own signal.
    template <typename T>
    bool assign(T &field, const T &value)
    {
        if (field == value)
            return false;
        field = value;
        repaint();
        return true;
    }

private:
    void refit();
    [[nodiscard]] QSize shownSize() const;

    std::shared_future<QImage> m_picture; ///< Until updatePaintNode() takes it.
    int m_longestSide = std::numeric_limits<int>::max();
};
