#include "camera/camerabody.h"

#include "camera/geometry.h"
#include "camera/textures.h"
#include "kit/continuouspath.h"
#include "kit/gradients.h"

#include <QLinearGradient>
#include <QPainter>

using namespace Painting;

namespace {

constexpr double kLeatherOpacity = 0.55;
// Pebbles stand out by their edges: a lit copy of the tile peeps out above each one and a dark
// copy below, as under a lamp at the top left. How far either moves the metal's lightness is the
// same on every body: black of one opacity would be faint on black metal and like ink on gray. The
// light has more to do, as the pebbles themselves are a little darker than the upper metal.
constexpr double kPebbleRelief = 0.7;
constexpr double kPebbleLight = 0.13;
constexpr double kPebbleShade = 0.08;

QPainterPath ring(const QRectF &outer, double outerRadius, double width, double innerRadius)
{
    QPainterPath path = continuousPath(outer, outerRadius);
    path.addPath(continuousPath(inset(outer, width), innerRadius));
    path.setFillRule(Qt::OddEvenFill);
    return path;
}

// The three layers over one another, ready to be laid on the metal. Two of them lie between pixels
// and have to be filtered; that is done over one tile instead of the whole body.
QImage reliefTile(const HVColors &c, double scale)
{
    const double metal = qGray(c.bodyHi().rgb()) / 255.0;

    QImage tile = Textures::leatherTile(gray(0), scale);
    const QImage black = tile;
    tile.fill(Qt::transparent);

    QPainter painter(&tile);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const auto lay = [&painter](const QImage &pebbles, double opacity, double shift) {
        QBrush leather(pebbles);
        leather.setTransform(QTransform::fromTranslate(shift, shift));
        painter.setOpacity(opacity);
        painter.fillRect(
            QRectF(0, 0, Textures::leatherTileSide, Textures::leatherTileSide), leather);
    };
    lay(Textures::leatherTile(gray(1), scale), kPebbleLight / (1 - metal), -kPebbleRelief);
    lay(black, kPebbleShade / metal, kPebbleRelief);
    lay(Textures::leatherTile(c.leather(), scale), kLeatherOpacity, 0);
    return tile;
}

} // namespace

void CameraBody::paintBody(QPainter &painter, QSizeF size, const HVColors &c)
{
    const QRectF area({}, size);
    const QPainterPath metal = continuousPath(area, Geometry::bodyRadius);
    painter.fillPath(metal, verticalBrush(area, c.bodyHi(), c.body(), c.bodyLo()));

    painter.fillPath(continuousPath(inset(area, Geometry::leatherInset), Geometry::leatherRadius),
        reliefTile(c, painter.deviceTransform().m11()));

    paintPanel(painter, area,
        {
            .radius = Geometry::bodyRadius,
            .stroke = verticalBrush(area, gray(1, 0.28), {}, gray(0, 0.7)),
            .strokeWidth = 1.5,
        });
}

void CameraBody::paintGlass(QPainter &painter, QSizeF size, const HVColors &c)
{
    const QRectF area({}, size);
    const QRectF glass = inset(area, Geometry::bezel);

    painter.fillPath(ring(area, Geometry::bezelRadius, Geometry::bezel, Geometry::glassRadius),
        verticalBrush(area, c.bodyLo(), {}, gray(0.12)));
    paintPanel(painter, area,
        {
            .radius = Geometry::bezelRadius,
            .stroke = verticalBrush(area, gray(0, 0.9), {}, gray(1, 0.18)),
            .strokeWidth = 1.2,
        });

    QLinearGradient sheen(glass.topLeft(), glass.center());
    sheen.setColorAt(0, gray(1, 0.05));
    sheen.setColorAt(1, gray(1, 0));
    paintPanel(painter, glass,
        { .radius = Geometry::glassRadius,
            .fill = sheen,
            .stroke = c.glassEdge(),
            .strokeWidth = 1 });
}
