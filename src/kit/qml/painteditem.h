// The base of everything that is painted by hand.
#pragma once

#include <QQuickPaintedItem>
#include <QtQml/qqml.h>

#include <limits>

/// A painted item whose texture has as many pixels as it covers on the screen: the interface zoom
/// times the window's device pixel ratio. Without that a magnified interface would show the
/// picture of a small one. Subclasses paint in logical coordinates, whatever the texture's size.
class PaintedItem : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ANONYMOUS
public:
    explicit PaintedItem(QQuickItem *parent = nullptr);

protected:
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

    /// Device pixels per logical unit.
    [[nodiscard]] double renderScale() const;

    /// Keeps either side of the texture within so many pixels; a larger item is painted coarser and
    /// magnified. Unlimited by default.
    void limitTexture(int longestSide);

    /// Stores `value` in `field` and repaints if that changes anything; true if it did. The
    /// caller emits its own signal.
    template <typename T>
    bool assign(T &field, const T &value)
    {
        if (field == value)
            return false;
        field = value;
        update();
        return true;
    }

private:
    void fitTexture();

    int m_longestSide = std::numeric_limits<int>::max();
};
