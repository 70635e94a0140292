#include "glowslider.h"

#include "simulator/screens/common/sliderreading.h"

#include "kit/gradients.h"

#include <QCursor>
#include <QFocusEvent>
#include <QHoverEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kHandleRadius = 8;
constexpr double kHaloRadius = 11; // the handle, its halo and the ring of the focus
constexpr double kTrackWidth = 4;
constexpr int kStepsPerPage = 10;
constexpr int kNotch = 120; // of a wheel, in eighths of a degree

bool byKey(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason
        || reason == Qt::ShortcutFocusReason;
}

} // namespace

GlowSlider::GlowSlider(QQuickItem *parent)
    : CameraSurface(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton);
    setAcceptHoverEvents(true);
    setActiveFocusOnTab(true);
    setCursor(Qt::PointingHandCursor);
    setImplicitSize(190, 2 * kHaloRadius);
}

void GlowSlider::setScaleOfStops(const StopScale &scale)
{
    if (m_scale == scale)
        return;
    m_scale = scale;
    repaint();
    Q_EMIT rangeChanged();
}

void GlowSlider::setFrom(double from)
{
    if (m_from == from)
        return;
    m_from = from;
    repaint();
    Q_EMIT rangeChanged();
}

void GlowSlider::setTo(double to)
{
    if (m_to == to)
        return;
    m_to = to;
    repaint();
    Q_EMIT rangeChanged();
}

void GlowSlider::setShown(double value)
{
    if (m_shown == value)
        return;
    m_shown = value;
    repaint();
    Q_EMIT valueChanged();
}

double GlowSlider::first() const
{
    return hasStops() ? m_scale.stops().first() : m_from;
}

double GlowSlider::last() const
{
    return hasStops() ? m_scale.stops().last() : m_to;
}

double GlowSlider::fraction() const
{
    if (hasStops()) {
        const double places = double(m_scale.stops().size() - 1);
        return places > 0 ? m_scale.nearest(m_shown) / places : 0;
    }
    const double along = (m_shown - m_from) / (m_to - m_from);
    return std::isfinite(along) ? std::clamp(along, 0.0, 1.0) : 0;
}

double GlowSlider::valueAt(double fraction) const
{
    const double along = std::clamp(fraction, 0.0, 1.0);
    if (hasStops())
        return m_scale.stops().at(qRound(along * double(m_scale.stops().size() - 1)));
    return m_from + along * (m_to - m_from);
}

void GlowSlider::ask(double value)
{
    if (std::isnan(value))
        return;
    value = hasStops() ? m_scale.moved(value, 0) : std::clamp(value, least(), greatest());
    if (value != m_shown)
        Q_EMIT moved(value);
}

void GlowSlider::step(int steps)
{
    ask(hasStops() ? m_scale.moved(m_shown, steps)
                   : SliderReading::moved(std::clamp(m_shown, least(), greatest()), steps));
}

double GlowSlider::smallestStep() const
{
    if (!hasStops())
        return SliderReading::moved(least(), 1) - least();
    const auto &stops = m_scale.stops();
    double smallest = greatest() - least();
    for (qsizetype i = 1; i < stops.size(); ++i)
        smallest = std::min(smallest, std::abs(stops[i] - stops[i - 1]));
    // 1.2 − 1.1 isn't quite 0.1, which would be read with a decimal too many.
    return std::round(smallest * 1e6) / 1e6;
}

double GlowSlider::trackLength() const
{
    return std::max(width() - 2 * kHaloRadius, 1.0);
}

double GlowSlider::handleX() const
{
    return kHaloRadius + fraction() * trackLength();
}

void GlowSlider::dragTo(double x)
{
    ask(valueAt((x - m_grip - kHaloRadius) / trackLength()));
}

void GlowSlider::setPressed(bool pressed)
{
    if (m_pressed == pressed)
        return;
    m_pressed = pressed;
    repaint();
    Q_EMIT pressedChanged();
}

void GlowSlider::mousePressEvent(QMouseEvent *event)
{
    forceActiveFocus(Qt::MouseFocusReason);
    // A pane under a finger must not take the drag for its own.
    setKeepMouseGrab(true);
    const double fromHandle = event->position().x() - handleX();
    m_grip = std::abs(fromHandle) <= kHaloRadius ? fromHandle : 0;
    setPressed(true);
    dragTo(event->position().x());
}

void GlowSlider::mouseMoveEvent(QMouseEvent *event)
{
    dragTo(event->position().x());
}

void GlowSlider::mouseReleaseEvent(QMouseEvent *)
{
    setKeepMouseGrab(false);
    setPressed(false);
}

void GlowSlider::mouseUngrabEvent()
{
    setKeepMouseGrab(false);
    setPressed(false);
}

void GlowSlider::roll(QPointF angle)
{
    // Fine wheels and touchpads turn by fractions of a notch.
    m_unrolled += (angle.y() != 0 ? angle.y() : angle.x()) / kNotch;
    const int steps = int(m_unrolled);
    m_unrolled -= steps;
    if (steps != 0)
        step(steps);
}

void GlowSlider::wheelEvent(QWheelEvent *event)
{
    roll(event->angleDelta());
    event->accept();
}

void GlowSlider::keyPressEvent(QKeyEvent *event)
{
    if (event->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) {
        event->ignore(); // it is part of a shortcut
        return;
    }
    switch (event->key()) {
    case Qt::Key_Right:
    case Qt::Key_Up:
        step(1);
        break;
    case Qt::Key_Left:
    case Qt::Key_Down:
        step(-1);
        break;
    case Qt::Key_PageUp:
        step(kStepsPerPage);
        break;
    case Qt::Key_PageDown:
        step(-kStepsPerPage);
        break;
    case Qt::Key_Home:
        ask(first());
        break;
    case Qt::Key_End:
        ask(last());
        break;
    default:
        event->ignore();
        return;
    }
    setFocusLook(true, m_focusReason);
}

void GlowSlider::hoverEnterEvent(QHoverEvent *)
{
    m_hovered = true;
    repaint();
}

void GlowSlider::hoverLeaveEvent(QHoverEvent *)
{
    m_hovered = false;
    repaint();
}

void GlowSlider::focusInEvent(QFocusEvent *event)
{
    setFocusLook(byKey(event->reason()), event->reason());
    CameraSurface::focusInEvent(event);
}

void GlowSlider::focusOutEvent(QFocusEvent *event)
{
    setFocusLook(false, event->reason());
    CameraSurface::focusOutEvent(event);
}

void GlowSlider::setFocusLook(bool visual, Qt::FocusReason reason)
{
    if (m_visualFocus == visual && m_focusReason == reason)
        return;
    m_visualFocus = visual;
    m_focusReason = reason;
    repaint();
    Q_EMIT visualFocusChanged();
}

void GlowSlider::paint(QPainter *painter)
{
    using namespace Painting;
    const double middle = height() / 2;
    const QPointF handle(handleX(), middle);
    painter->setPen(Qt::NoPen);

    const QRectF track(kHaloRadius - kTrackWidth / 2, middle - kTrackWidth / 2,
        trackLength() + kTrackWidth, kTrackWidth);
    painter->setBrush(c().track());
    painter->drawRoundedRect(track, kTrackWidth / 2, kTrackWidth / 2);
    QRectF lit = track;
    lit.setRight(handle.x());
    painter->setBrush(c().glow());
    painter->drawRoundedRect(lit, kTrackWidth / 2, kTrackWidth / 2);

    // Reaches a little farther while the pointer is over it.
    QRadialGradient halo(handle, kHaloRadius);
    QColor light = m_pressed || m_hovered ? c().buttonEdge() : c().haloRaised();
    halo.setColorAt(0.5, light);
    light.setAlphaF(0);
    halo.setColorAt(1, light);
    painter->setBrush(halo);
    painter->drawEllipse(handle, kHaloRadius, kHaloRadius);

    // A turned metal button with a lit center.
    const QRectF rim(
        handle.x() - kHandleRadius, middle - kHandleRadius, 2 * kHandleRadius, 2 * kHandleRadius);
    painter->setBrush(
        verticalBrush(rim, gray(m_pressed || m_hovered ? 0.9 : 0.78), {}, gray(0.35)));
    painter->drawEllipse(rim);
    painter->setBrush(c().oled());
    painter->drawEllipse(handle, kHandleRadius - 2.5, kHandleRadius - 2.5);
    painter->setBrush(c().glow());
    painter->drawEllipse(handle, kHandleRadius - 4.5, kHandleRadius - 4.5);

    if (visualFocus()) {
        painter->setBrush(Qt::NoBrush);
        painter->setPen(QPen(c().oledText(), 2));
        painter->drawEllipse(handle, kHaloRadius - 1, kHaloRadius - 1);
    }
}
