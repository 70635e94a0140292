#pragma once

#include <QList>
#include <QPointF>
#include <QPointer>
#include <QQuickItem>
#include <QRectF>
#include <QtQml/qqml.h>

class PreparedItem;

/// Has the items of a window prepare what they show, all at once, when the scene graph is about to
/// take them in one after the other. Before that it tells them where they stand by now: no signal
/// of Qt's comes when an ancestor is moved or magnified.
class FramePreparation : public QObject
{
    Q_OBJECT
public:
    /// That of `window`, which owns it.
    [[nodiscard]] static FramePreparation *of(QQuickWindow *window);

    void add(PreparedItem *item) { m_items.append(item); }
    void remove(PreparedItem *item) { m_items.removeOne(item); }

private:
    explicit FramePreparation(QQuickWindow *window);

    void place() const;
    // The main thread waits during both, whichever thread they run in.
    void prepare() const;
    void settle() const;

    QList<PreparedItem *> m_items;
};

/// An item that makes what it shows on other threads, at the same time as all others do. The main
/// thread waits meanwhile, so nothing of the item changes.
///
/// What it shows is a picture in device pixels, as many as the item covers by now, and each of them
/// is shown as one pixel of the device: it isn't resampled, so that strokes are as strong at the
/// lower edge as at the upper, at every zoom. For that the picture is laid on whole pixels, at most
/// half a pixel beside the item's place.
class PreparedItem : public QQuickItem
{
    Q_OBJECT
    QML_ANONYMOUS
public:
    explicit PreparedItem(QQuickItem *parent = nullptr);
    ~PreparedItem() override;

Q_SIGNALS:
    /// Something about how the item looks has changed.
    void lookChanged();

protected:
    /// Device pixels per logical unit, with the scales of all ancestors; 1 outside a window.
    [[nodiscard]] double renderScale() const { return placement().scale; }

    /// The whole pixels of the device that the item covers, at least one unless it is empty
    /// or shrunk to nothing.
    [[nodiscard]] QSize deviceSize() const;

    /// Where in the item's coordinates `pixels` of the device are, of which (0, 0) is the one
    /// where the item begins.
    [[nodiscard]] QRectF onDevice(const QRect &pixels) const;

    /// False where the item's pixels can't be those of the device, since it is turned.
    [[nodiscard]] bool isUpright() const { return placement().upright; }

    /// In place of update(): the item is prepared first.
    void repaint();

    /// How properties are set: stores `value` in `field`, and if that changes anything, repaints
    /// and tells.
    template <typename T>
    void set(T &field, const T &value)
    {
        if (field == value)
            return;
        field = value;
        repaint();
        Q_EMIT lookChanged();
    }

    /// Starts to make what updatePaintNode() will show. Called while the item is visible.
    virtual void prepare() = 0;
    /// Waits for what prepare() started, if updatePaintNode() hasn't.
    virtual void settle() = 0;

    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    friend class FramePreparation;

    /// Where the item is shown.
    struct Placement {
        double scale = 1;
        QPointF offset; ///< From the item's origin to the nearest whole pixel, in device pixels.
        bool upright = true;

        friend bool operator==(const Placement &, const Placement &) = default;
    };

    [[nodiscard]] Placement placement() const;
    void place();
    void enter(QQuickWindow *window);
    void leave();

    QPointer<FramePreparation> m_preparation;
    Placement m_placement; ///< As of the last frame.
    bool m_waits = false;  ///< To be prepared for the next frame.
};
