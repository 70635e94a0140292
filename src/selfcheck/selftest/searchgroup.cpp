#include "content/contentkind.h"
#include "content/contentlibrary.h"
#include "diagrams/qml/diagramcanvas.h"
#include "selfcheck/selftest/groups.h"
#include "shell/appmodel.h"

#include <QPainter>
#include <QSet>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;
using Hit = ContentLibrary::Hit;

namespace {

constexpr QSize kFrame(400, 260);
constexpr qsizetype kPixels = qsizetype(kFrame.width()) * kFrame.height();
constexpr int kLit = 120;          // of 255; a brighter channel makes a pixel a lit one
constexpr qsizetype kInked = 1500; // pixels; a drawing lights more
constexpr qsizetype kHitsTold = 4;

bool holds(const QList<Hit> &hits, const QString &ref)
{
    return std::ranges::find(hits, ref, &Hit::ref) != hits.end();
}

QString firstRefs(const QList<Hit> &hits)
{
    QStringList refs;
    for (const Hit &hit : hits.first(qMin(kHitsTold, hits.size())))
        refs.append(hit.ref);
    return refs.join(", "_L1);
}

QImage emptyFrame()
{
    QImage frame(kFrame, QImage::Format_RGB32);
    frame.fill(Qt::black);
    return frame;
}

// The drawing as the encyclopedia shows it, in white on black.
QImage rendered(const QString &kind)
{
    QImage frame = emptyFrame();
    if (frame.isNull())
        return frame;
    DiagramCanvas canvas;
    canvas.setKind(kind);
    canvas.setGlow(Qt::white);
    canvas.setLabel(Qt::white);
    canvas.setSize(kFrame);
    QPainter painter(&frame);
    canvas.paint(&painter);
    return frame;
}

// Calls `action` with the pixels row by row, from the top left.
template <typename Action>
void forEachPixel(const QImage &image, const Action &action)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            action(image.pixel(x, y));
    }
}

qsizetype litPixels(const QImage &image)
{
    qsizetype lit = 0;
    forEachPixel(image, [&lit](QRgb pixel) {
        lit += std::max({ qRed(pixel), qGreen(pixel), qBlue(pixel) }) > kLit ? 1 : 0;
    });
    return lit;
}

// Two pictures of the same ink in other places differ in it.
quint64 weightedSum(const QImage &image)
{
    quint64 sum = 0;
    quint64 place = 0;
    forEachPixel(image,
        [&](QRgb pixel) { sum += ++place * quint64(qRed(pixel) + qGreen(pixel) + qBlue(pixel)); });
    return sum;
}

void checkDrawings(HVTestRun &run, const GearEntry *tripod)
{
    run.check(tripod != nullptr, u"tripod entry exists"_s);
    const QImage drawing = tripod ? rendered(tripod->diagram) : QImage();
    run.check(!drawing.isNull(), u"the tripod diagram renders"_s);
    const qsizetype lit = litPixels(drawing);
    run.check(
        lit > kInked, u"the tripod diagram is drawn (%1 lit pixels of %2)"_s.arg(lit).arg(kPixels));
    run.check(litPixels(emptyFrame()) == 0, u"(control: an empty frame has no lit pixels)"_s);

    // The last names no drawing, and the sensor stands in for it.
    const std::array kinds{ u"tripod"_s, u"monopod"_s, u"prime"_s, u"softbox"_s, u"film35"_s };
    QSet<quint64> sums;
    for (const QString &kind : kinds)
        sums.insert(weightedSum(rendered(kind)));
    run.check(sums.size() == qsizetype(kinds.size()), u"different gear gets different drawings"_s);
}

} // namespace

void HVSelfTest::searchTests(HVTestRun &run)
{
    const ContentLibrary &course = ContentLibrary::shared();
    const QString tripodID = u"tripod"_s;

    run.begin(u"Encyclopedia search (FTS5): \"tripod\" finds the tripod and its diagram"_s);

    const QList<Hit> tripods = course.search(tripodID, ContentKind::gear);
    run.check(!tripods.isEmpty() && tripods.first().ref == tripodID,
        u"\"tripod\" → first result is the Tripod entry ("_s + firstRefs(tripods) + u')');
    run.check(holds(course.search(u"tripo"_s, ContentKind::gear), tripodID),
        u"typing part of a word (\"tripo\") already finds it"_s);
    run.check(holds(course.search(u"TRIPOD"_s), tripodID), u"search ignores capitals"_s);
    run.check(course.search(u"zzqxv"_s).isEmpty() && course.search(u"   "_s).isEmpty(),
        u"nonsense or empty search finds nothing (no crash)"_s);
    run.check(course.search(u"aperture"_s, ContentKind::lesson).size() > 2,
        u"\"aperture\" finds several lessons"_s);
    run.check(course.search(u"Kodak"_s, ContentKind::history).size() > 1,
        u"\"Kodak\" finds history events"_s);
    const QList<Hit> lightroom = course.search(u"Lightroom"_s);
    run.check(std::ranges::find(lightroom, ContentKind::software, &Hit::kind) != lightroom.end(),
        u"\"Lightroom\" finds the software entry"_s);

    const GearEntry *tripod = course.gearEntry(tripodID);
    const qsizetype models = tripod ? tripod->models.size() : 0;
    run.check(tripod && tripod->diagram == "tripod"_L1 && models > 2,
        u"the tripod entry uses the tripod diagram and lists %1 models for different uses"_s.arg(
            models));

    AppModel::shared().setGearQuery(tripodID);
    AppModel::shared().setGearID(std::nullopt);
    checkDrawings(run, tripod);
}
