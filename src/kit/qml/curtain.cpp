#include "curtain.h"

#include "scrollbehavior.h"

#include <QWheelEvent>

Curtain::Curtain(QQuickItem *parent)
    : QQuickItem(parent)
{
    setAcceptedMouseButtons(Qt::AllButtons);
    setAcceptHoverEvents(true);
    setAcceptTouchEvents(true);
}

void Curtain::wheelEvent(QWheelEvent *event)
{
    ScrollBehavior::scrollAround(this, *event);
    // Refused, it would go on to what lies under the curtain.
    event->accept();
}
