#include "scrollbehavior.h"

#include <QKeyEvent>
#include <QPointingDevice>
#include <QWheelEvent>

#include <algorithm>
#include <limits>

namespace {

// All in points of the content.
constexpr qreal kWheelStep = 60;
constexpr qreal kKeyStep = 48;
constexpr qreal kFocusMargin = 16;

// How far a wheel or a touchpad asks the content to move.
QPointF distance(const QWheelEvent &wheel)
{
    constexpr int kNotch = 120; // a click of the wheel, in eighths of a degree
    const QPointF moved = wheel.pixelDelta().isNull()
        ? QPointF(wheel.angleDelta()) / kNotch * kWheelStep
        : QPointF(wheel.pixelDelta());
    // Some platforms turn it themselves.
    const bool turn = wheel.modifiers().testFlag(Qt::ShiftModifier) && moved.x() == 0;
    return turn ? moved.transposed() : moved;
}

// Where a view of this size begins that shows the stretch from `begin` to `end`, if it begins at
// `now` and need not move.
qreal shown(qreal begin, qreal end, qreal now, qreal size)
{
    return std::min(begin, std::max(now, end - size));
}

// Whether the focus came by key. Places that the mouse reaches are in sight.
bool isFocusedByKey(const QQuickItem &item)
{
    switch (item.property("focusReason").toInt()) {
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
    case Qt::ShortcutFocusReason:
        return true;
    default:
        return false;
    }
}

// The item that shows the focus of this one.
QQuickItem *focusFrame(QQuickItem *item)
{
    auto *frame = item->property("focusFrame").value<QQuickItem *>();
    return frame ? frame : item;
}

} // namespace

QPointF ScrollBehavior::position() const
{
    return { pane()->property("contentX").toReal(), pane()->property("contentY").toReal() };
}

bool ScrollBehavior::scrollTo(qreal x, qreal y)
{
    QQuickItem &view = *pane();
    const QPointF before = position();
    // The content of a list may begin anywhere: it guesses the heights of what it hasn't made yet.
    const qreal minX = view.property("originX").toReal();
    const qreal minY = view.property("originY").toReal();
    const qreal rangeX = std::max(0.0, view.property("contentWidth").toReal() - view.width());
    const qreal rangeY = std::max(0.0, view.property("contentHeight").toReal() - view.height());
    const QPointF after(std::clamp(x, minX, minX + rangeX), std::clamp(y, minY, minY + rangeY));
    if (after.x() != before.x())
        view.setProperty("contentX", after.x());
    if (after.y() != before.y())
        view.setProperty("contentY", after.y());
    return after != before;
}

bool ScrollBehavior::moveTo(qreal x, qreal y)
{
    const bool moved = scrollTo(x, y);
    if (moved)
        pane()->setProperty("handMoves", pane()->property("handMoves").toInt() + 1);
    return moved;
}

bool ScrollBehavior::goOn(bool forward)
{
    if (!pane()->hasActiveFocus())
        return false;
    pane()->nextItemInFocusChain(forward)->forceActiveFocus(
        forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void ScrollBehavior::stayInsideLater()
{
    QMetaObject::invokeMethod(
        this, [this] { scrollTo(position().x(), position().y()); }, Qt::QueuedConnection);
}

void ScrollBehavior::reveal(QQuickItem *item)
{
    reveal(*item, QRectF(0, 0, item->width(), item->height()));
}

void ScrollBehavior::revealAround(const QQuickItem &item, const QRectF &area)
{
    if (ScrollBehavior *behavior = around(&item))
        behavior->reveal(item, area);
}

void ScrollBehavior::reveal(const QQuickItem &item, const QRectF &part)
{
    const auto *content = pane()->property("contentItem").value<QQuickItem *>();
    const QRectF area
        = item.mapRectToItem(content, part)
              .marginsAdded({ kFocusMargin, kFocusMargin, kFocusMargin, kFocusMargin });
    const QPointF now = position();
    moveTo(shown(area.left(), area.right(), now.x(), pane()->width()),
        shown(area.top(), area.bottom(), now.y(), pane()->height()));
    if (ScrollBehavior *outer = around(pane()))
        outer->reveal(item, part);
}

ScrollBehavior *ScrollBehavior::around(const QQuickItem *item)
{
    for (const QQuickItem *at = item->parentItem(); at; at = at->parentItem()) {
        if (auto *found = at->findChild<ScrollBehavior *>(QString(), Qt::FindDirectChildrenOnly))
            return found;
    }
    return nullptr;
}

bool ScrollBehavior::scrollAround(const QQuickItem *item, const QWheelEvent &wheel)
{
    for (ScrollBehavior *at = around(item); at; at = around(at->pane())) {
        if (at->follow(wheel))
            return true;
    }
    return false;
}

void ScrollBehavior::componentComplete()
{
    QQuickItem *view = pane();
    if (!view)
        return;
    view->installEventFilter(this);
    connect(view, &QQuickItem::windowChanged, this, &ScrollBehavior::followWindow);
    followWindow(view->window());
}

void ScrollBehavior::followWindow(QQuickWindow *window)
{
    if (m_window) {
        m_window->removeEventFilter(this);
        m_window->disconnect(this);
    }
    m_window = window;
    if (window) {
        window->installEventFilter(this);
        connect(window, &QQuickWindow::activeFocusItemChanged, this, &ScrollBehavior::followFocus);
    }
}

void ScrollBehavior::followFocus()
{
    QQuickItem *item = m_window->activeFocusItem();
    // One of the panes around it begins; the others follow from within outwards, since a pane that
    // moves takes the item with it.
    if (item && isFocusedByKey(*item) && around(item) == this)
        reveal(focusFrame(item));
}

bool ScrollBehavior::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::TouchBegin:
        if (watched == m_window)
            pane()->setProperty("interactive", true);
        break;
    case QEvent::MouseButtonPress: {
        const auto type = static_cast<QMouseEvent *>(event)->pointingDevice()->type();
        if (watched == m_window && type != QInputDevice::DeviceType::TouchScreen)
            pane()->setProperty("interactive", false);
        break;
    }
    case QEvent::Wheel:
        if (watched == pane()) {
            event->setAccepted(follow(*static_cast<QWheelEvent *>(event)));
            return true;
        }
        break;
    case QEvent::KeyPress:
        if (watched == pane() && follow(*static_cast<QKeyEvent *>(event))) {
            event->accept();
            return true;
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

bool ScrollBehavior::follow(const QWheelEvent &wheel)
{
    const QPointF to = position() - distance(wheel);
    return moveTo(to.x(), to.y());
}

bool ScrollBehavior::follow(const QKeyEvent &key)
{
    const QPointF now = position();
    const qreal page = pane()->height() - kKeyStep;
    switch (key.key()) {
    case Qt::Key_Up:
        return moveTo(now.x(), now.y() - kKeyStep);
    case Qt::Key_Down:
        return moveTo(now.x(), now.y() + kKeyStep);
    case Qt::Key_Left:
        return moveTo(now.x() - kKeyStep, now.y());
    case Qt::Key_Right:
        return moveTo(now.x() + kKeyStep, now.y());
    case Qt::Key_PageUp:
        return moveTo(now.x(), now.y() - page);
    case Qt::Key_PageDown:
        return moveTo(now.x(), now.y() + page);
    case Qt::Key_Home:
        return moveTo(now.x(), std::numeric_limits<qreal>::lowest());
    case Qt::Key_End:
        // A list that guesses heights knows its last row all the same.
        if (pane()->metaObject()->indexOfMethod("positionViewAtEnd()") >= 0)
            return QMetaObject::invokeMethod(pane(), "positionViewAtEnd");
        return moveTo(now.x(), std::numeric_limits<qreal>::max());
    default:
        return false;
    }
}
