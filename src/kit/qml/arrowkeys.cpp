#include "arrowkeys.h"

#include <QKeyEvent>
#include <QQuickWindow>

#include <cmath>
#include <limits>

namespace {

// All that the Tab key would reach in an item, in the order in which it stands there.
QList<QQuickItem *> controls(const QQuickItem *item)
{
    QList<QQuickItem *> found;
    for (QQuickItem *child : item->childItems()) {
        if (!child->isVisible() || !child->isEnabled())
            continue;
        if (child->activeFocusOnTab())
            found.append(child);
        found += controls(child);
    }
    return found;
}

QPointF unit(int key)
{
    switch (key) {
    case Qt::Key_Up:
        return { 0, -1 };
    case Qt::Key_Down:
        return { 0, 1 };
    case Qt::Key_Left:
        return { -1, 0 };
    case Qt::Key_Right:
        return { 1, 0 };
    default:
        return {};
    }
}

// The control nearest to `from` in a direction. What lies aside counts double: the eye follows the
// row or column.
QQuickItem *nearest(
    const QList<QQuickItem *> &all, const QQuickItem *group, QQuickItem *from, QPointF direction)
{
    const auto area = [group](const QQuickItem *item) {
        return item->mapRectToItem(group, QRectF(0, 0, item->width(), item->height()));
    };
    const QRectF here = area(from);
    QQuickItem *best = nullptr;
    double shortest = std::numeric_limits<double>::max();
    for (QQuickItem *item : all) {
        const QRectF there = area(item);
        const QPointF way = there.center() - here.center();
        const double ahead = QPointF::dotProduct(way, direction);
        const bool clear = direction.x() == 0
            ? (direction.y() > 0 ? there.top() >= here.bottom() - 1
                                 : there.bottom() <= here.top() + 1)
            : (direction.x() > 0 ? there.left() >= here.right() - 1
                                 : there.right() <= here.left() + 1);
        if (item == from || !clear)
            continue;
        const double aside = std::abs(QPointF::dotProduct(way, direction.transposed()));
        if (ahead + 2 * aside < shortest) {
            shortest = ahead + 2 * aside;
            best = item;
        }
    }
    return best;
}

} // namespace

void ArrowKeys::componentComplete()
{
    if (QQuickItem *item = group())
        item->installEventFilter(this);
}

bool ArrowKeys::enter()
{
    const QList<QQuickItem *> all = controls(group());
    if (!all.isEmpty())
        all.first()->forceActiveFocus(Qt::TabFocusReason);
    return !all.isEmpty();
}

QQuickItem *ArrowKeys::target(int key) const
{
    QQuickItem *focused = group()->window() ? group()->window()->activeFocusItem() : nullptr;
    if (!focused || !group()->isAncestorOf(focused))
        return nullptr;
    const QList<QQuickItem *> all = controls(group());
    switch (key) {
    case Qt::Key_Home:
        return all.isEmpty() ? nullptr : all.first();
    case Qt::Key_End:
        return all.isEmpty() ? nullptr : all.last();
    default:
        return unit(key).isNull() ? nullptr : nearest(all, group(), focused, unit(key));
    }
}

bool ArrowKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto &key = static_cast<const QKeyEvent &>(*event);
        const auto modifiers = key.modifiers() & ~Qt::KeypadModifier;
        QQuickItem *item = modifiers == Qt::NoModifier ? target(key.key()) : nullptr;
        if (item) {
            item->forceActiveFocus(Qt::TabFocusReason);
            event->accept();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}
