#include "zoomgestures.h"

#include "kit/zoom.h"

#include <QLineF>
#include <QNativeGestureEvent>
#include <QTouchEvent>
#include <QWheelEvent>

#include <cmath>

namespace {

// Two fingers that scroll don't keep their distance to the pixel.
constexpr double kIntended = 0.08;

} // namespace

void ZoomGestures::componentComplete()
{
    if (auto *item = qobject_cast<QQuickItem *>(parent())) {
        connect(item, &QQuickItem::windowChanged, this, &ZoomGestures::followWindow);
        followWindow(item->window());
    }
}

void ZoomGestures::followWindow(QQuickWindow *window)
{
    if (m_window)
        m_window->removeEventFilter(this);
    m_window = window;
    if (m_window)
        m_window->installEventFilter(this);
}

bool ZoomGestures::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Wheel: {
        const auto &wheel = static_cast<const QWheelEvent &>(*event);
        if (!wheel.modifiers().testFlag(Qt::ControlModifier))
            break;
        turn(wheel.angleDelta().y());
        return true;
    }
    case QEvent::NativeGesture: {
        const auto &gesture = static_cast<const QNativeGestureEvent &>(*event);
        if (gesture.gestureType() == Qt::BeginNativeGesture)
            m_zoomBefore = CNZoom::value();
        if (gesture.gestureType() != Qt::ZoomNativeGesture)
            break;
        // Not what is stored, which is rounded: small changes have to add up.
        m_zoomBefore *= 1 + gesture.value();
        CNZoom::setValue(m_zoomBefore);
        return true;
    }
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
        if (pinch(static_cast<const QTouchEvent &>(*event)))
            return true;
        break;
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        m_fingers = 0;
        m_pinching = false;
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void ZoomGestures::turn(int angle)
{
    constexpr int kClick = 120;
    // A turn the other way begins anew. A touchpad's small turns add up.
    m_turned = m_turned * angle < 0 ? angle : m_turned + angle;
    for (; m_turned >= kClick; m_turned -= kClick)
        CNZoom::setValue(CNZoom::value() + CNZoom::step);
    for (; m_turned <= -kClick; m_turned += kClick)
        CNZoom::setValue(CNZoom::value() - CNZoom::step);
}

bool ZoomGestures::pinch(const QTouchEvent &touch)
{
    if (touch.pointCount() != 2) {
        m_fingers = 0;
        return m_pinching; // A finger that is left over doesn't scroll.
    }
    const QList<QEventPoint> &fingers = touch.points();
    const double apart = QLineF(fingers[0].position(), fingers[1].position()).length();
    if (m_fingers == 0) {
        m_fingers = std::max(apart, 1.0);
        m_zoomBefore = CNZoom::value();
    }
    const double grown = apart / m_fingers;
    m_pinching = m_pinching || std::abs(grown - 1) > kIntended;
    if (m_pinching)
        CNZoom::setValue(m_zoomBefore * grown);
    return m_pinching;
}
