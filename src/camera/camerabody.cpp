#include "camera/camerabody.h"

#include "camera/textures.h"
#include "kit/continuouspath.h"
#include "kit/gradients.h"
#include "kit/picture.h"

#include <QLinearGradient>
#include <QPainter>

#include <optional>
#include <utility>

using namespace Painting;

using namespace CameraBody;

namespace {

constexpr double kBodyRadius = 46;
constexpr double kLeatherInset = 10;
constexpr double kLeatherRadius = 40;
constexpr double kLeatherOpacity = 0.55;
// Pebbles stand out by their edges: a lit copy of the tile peeps out above each one and a dark
// copy below, as under a lamp at the top left. How far either moves the metal's lightness is the
// same on every body: black of one opacity would be faint on black metal and like ink on gray. The
// light has more to do, as the pebbles themselves are a little darker than the upper metal.
constexpr double kPebbleRelief = 0.7;
constexpr double kPebbleLight = 0.13;
constexpr double kPebbleShade = 0.08;

constexpr double kBezel = 7;
constexpr double kBezelRadius = 28;
constexpr double kGlassRadius = 22;

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

void paint(QPainter &painter, const Body &body)
{
    const QRectF area({}, body.size);
    const double scale = body.pixels.width() / body.size.width();
    const HVColors &c = body.colors;
    // What covers the body may be shown up to a pixel beside its place.
    const QRect hidden = inset(body.display, 1).toRect();
    painter.setClipRegion(QRegion(area.toAlignedRect()) - QRegion(hidden));

    const QPainterPath metal = continuousPath(area, kBodyRadius);
    painter.fillPath(metal, verticalBrush(area, c.bodyHi(), c.body(), c.bodyLo()));

    painter.fillPath(
        continuousPath(inset(area, kLeatherInset), kLeatherRadius), reliefTile(c, scale));

    paintPanel(painter, area,
        {
            .radius = kBodyRadius,
            .stroke = verticalBrush(area, gray(1, 0.28), {}, gray(0, 0.7)),
            .strokeWidth = 1.5,
        });
}

void paint(QPainter &painter, const Glass &look)
{
    const QRectF area({}, look.size);
    const QRectF glass = inset(area, kBezel);
    const HVColors &c = look.colors;

    painter.fillPath(ring(area, kBezelRadius, kBezel, kGlassRadius),
        verticalBrush(area, c.bodyLo(), {}, gray(0.12)));
    paintPanel(painter, area,
        {
            .radius = kBezelRadius,
            .stroke = verticalBrush(area, gray(0, 0.9), {}, gray(1, 0.18)),
            .strokeWidth = 1.2,
        });

    QLinearGradient sheen(glass.topLeft(), glass.center());
    sheen.setColorAt(0, gray(1, 0.05));
    sheen.setColorAt(1, gray(1, 0));
    QColor edge = c.glow();
    edge.setAlphaF(0.18f);
    paintPanel(painter, glass,
        { .radius = kGlassRadius, .fill = sheen, .stroke = edge, .strokeWidth = 1 });
}

template <typename Look>
std::shared_future<QImage> asPicture(const Look &look)
{
    return paintAsync(look.pixels, look.size, [look](QPainter &painter) { paint(painter, look); });
}

template <typename Look>
struct Kept {
    Look look;
    std::shared_future<QImage> picture;
};

std::optional<Kept<Body>> keptBody;
std::optional<Kept<Glass>> keptGlass;

template <typename Look>
std::shared_future<QImage> taken(std::optional<Kept<Look>> &kept, const Look &look)
{
    if (kept && kept->look == look)
        return std::exchange(kept, std::nullopt)->picture;
    return asPicture(look);
}

} // namespace

std::shared_future<QImage> CameraBody::paintAsync(const Body &body)
{
    return taken(keptBody, body);
}

std::shared_future<QImage> CameraBody::paintAsync(const Glass &glass)
{
    return taken(keptGlass, glass);
}

void CameraBody::startAhead(const Body &body, const Glass &glass)
{
    keptBody = { body, asPicture(body) };
    keptGlass = { glass, asPicture(glass) };
}

void CameraBody::forgetAhead()
{
    keptBody.reset();
    keptGlass.reset();
}
