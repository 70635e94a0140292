#include "prepareditem.h"

#include <QQuickWindow>

#include <cmath>
#include <utility>

namespace {

constexpr double kLongestSide = 1 << 24; // pixels

} // namespace

FramePreparation *FramePreparation::of(QQuickWindow *window)
{
    auto *known = window->findChild<FramePreparation *>(QString(), Qt::FindDirectChildrenOnly);
    return known ? known : new FramePreparation(window);
}

FramePreparation::FramePreparation(QQuickWindow *window)
    : QObject(window)
{
    // After the layout and before the scene graph looks at the items, in the main thread.
    connect(window, &QQuickWindow::afterAnimating, this, &FramePreparation::place);
    connect(window, &QQuickWindow::beforeSynchronizing, this, &FramePreparation::prepare,
        Qt::DirectConnection);
    connect(window, &QQuickWindow::afterSynchronizing, this, &FramePreparation::settle,
        Qt::DirectConnection);
}

void FramePreparation::place() const
{
    for (PreparedItem *item : m_items) {
        if (item->isVisible())
            item->place();
    }
}

void FramePreparation::prepare() const
{
    for (PreparedItem *item : m_items) {
        if (item->m_waits && item->isVisible())
            item->prepare();
    }
}

void FramePreparation::settle() const
{
    for (PreparedItem *item : m_items) {
        if (std::exchange(item->m_waits, false))
            item->settle();
    }
}

PreparedItem::PreparedItem(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    enter(window()); // Its parent may be in a window already.
}

PreparedItem::~PreparedItem()
{
    leave();
}

void PreparedItem::leave()
{
    if (m_preparation)
        m_preparation->remove(this);
    m_preparation = nullptr;
}

void PreparedItem::enter(QQuickWindow *window)
{
    leave();
    if (window)
        m_preparation = FramePreparation::of(window);
    if (m_preparation)
        m_preparation->add(this);
    repaint();
}

// Every item of the window is asked before each frame, some hundred on a screen: about a
// microsecond each, half of what itemTransform() takes. What that one also knows, the list
// `transform`, isn't used in this program.
PreparedItem::Placement PreparedItem::placement() const
{
    Placement placement;
    QPointF origin;
    for (const QQuickItem *item = this; item; item = item->parentItem()) {
        const double scale = item->scale();
        if (scale != 1) {
            const QPointF fixed = item->transformOriginPoint();
            origin = fixed + scale * (origin - fixed);
            placement.scale *= scale;
        }
        if (item->rotation() != 0 || scale <= 0)
            placement.upright = false;
        origin += item->position();
    }
    placement.scale = std::abs(placement.scale);
    if (window()) {
        placement.scale *= window()->effectiveDevicePixelRatio();
        origin *= window()->effectiveDevicePixelRatio();
    }
    // To a 256th: sums of fractions come out a little different each time.
    const auto offset = [](double at) { return std::round((std::round(at) - at) * 256) / 256; };
    placement.offset = { offset(origin.x()), offset(origin.y()) };
    return placement;
}

QSize PreparedItem::deviceSize() const
{
    const double scale = renderScale();
    if (size().isEmpty() || scale == 0)
        return {};
    // Lengths may be beyond what an int holds.
    return (size() * scale).boundedTo({ kLongestSide, kLongestSide }).toSize().expandedTo({ 1, 1 });
}

QRectF PreparedItem::onDevice(const QRect &pixels) const
{
    const Placement place = placement();
    const QPointF offset = place.upright ? place.offset : QPointF();
    return { (pixels.topLeft() + offset) / place.scale, QSizeF(pixels.size()) / place.scale };
}

void PreparedItem::place()
{
    const Placement before = std::exchange(m_placement, placement());
    if (before == m_placement)
        return;
    if (before.scale == m_placement.scale)
        update();
    else
        repaint();
}

void PreparedItem::repaint()
{
    update();
    m_waits = true;
}

void PreparedItem::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        repaint();
}

void PreparedItem::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemSceneChange)
        enter(data.window);
    else if (change == ItemVisibleHasChanged)
        repaint();
}
