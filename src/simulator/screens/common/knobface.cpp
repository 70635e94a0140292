#include "knobface.h"

#include "camera/textures.h"
#include "kit/continuouspath.h"
#include "kit/gradients.h"

#include <QPainter>

using namespace Painting;

namespace {

constexpr double kRing = 5; // from the rim to the black disc

} // namespace

void KnobFace::paint(QPainter *painter)
{
    const QRectF rim = boundingRect();
    const QRectF disc = inset(rim, kRing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(verticalBrush(rim, gray(0.24), {}, gray(0.05)));
    painter->drawEllipse(rim);

    QPainterPath ring;
    ring.addEllipse(rim);
    ring.addEllipse(disc);
    painter->save();
    painter->setClipPath(ring);
    Textures::paintKnurl(*painter, rim.size());
    painter->restore();

    painter->setBrush(Textures::turnedSheen(rim.center(), 0.3));
    painter->drawPath(ring);

    painter->setBrush(gray(0));
    painter->drawEllipse(disc);

    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(verticalBrush(rim, gray(1, 0.38), {}, gray(0, 0.7)), 1));
    painter->drawEllipse(inset(rim, 0.5));
    painter->setPen(QPen(verticalBrush(disc, gray(0, 0.8), {}, gray(1, 0.2)), 1));
    painter->drawEllipse(inset(disc, 0.5));
}
