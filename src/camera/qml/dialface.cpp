#include "dialface.h"

#include "camera/textures.h"
#include "kit/continuouspath.h"
#include "kit/gradients.h"

#include <QPainter>

using namespace Painting;

void DialFace::paint(QPainter *painter)
{
    const QRectF area = boundingRect();
    const QRectF outer = inset(area, 2);
    const QRectF inner = inset(area, 9);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);

    painter->setBrush(verticalBrush(outer, gray(m_lit ? 0.36 : 0.3), {}, gray(0.06)));
    painter->drawEllipse(outer);

    // The knurling turns with the dial; light and shade on the metal stay where the lamp is.
    QPainterPath edge;
    edge.addEllipse(outer);
    edge.addEllipse(inner);
    painter->save();
    painter->setClipPath(edge);
    painter->translate(area.center());
    painter->rotate(m_turn);
    painter->translate(-area.center());
    Textures::paintKnurl(*painter, area.size());
    painter->restore();

    painter->setBrush(Textures::turnedSheen(area.center(), 0.22));
    painter->drawPath(edge);

    painter->setBrush(verticalBrush(inner, gray(0.22), {}, gray(0.1)));
    painter->drawEllipse(inner);
    painter->setBrush(Textures::turnedSheen(area.center(), 0.12));
    painter->drawEllipse(inner);

    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(verticalBrush(outer, gray(1, 0.34), {}, gray(0, 0.7)), 1));
    painter->drawEllipse(inset(outer, 0.5));
    painter->setPen(QPen(verticalBrush(inner, gray(0, 0.75), {}, gray(1, 0.16)), 1));
    painter->drawEllipse(inset(inner, 0.5));
}
