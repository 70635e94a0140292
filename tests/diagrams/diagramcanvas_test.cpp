// When the item is painted, how finely, and what it costs.

#include "diagrams/qml/diagramcanvas.h"

#include "diagrams/diagramcatalogue.h"
#include "diagrams/diagrampainter.h"

#include "kit/preferences.h"
#include "kit/printing.h"

#include <QPainter>
#include <QQuickWindow>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

class CountingCanvas : public DiagramCanvas
{
public:
    using DiagramCanvas::DiagramCanvas;

    void paint(QPainter *painter) override
    {
        ++paints;
        DiagramCanvas::paint(painter);
    }

    int paints = 0;
};

// A page of drawings in a window; the page is what a scrolling view moves.
class DiagramCanvasTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        Preferences::shared().keepInMemory();
        window.resize(600, 400);
        page = new QQuickItem(window.contentItem());
        page->setSize({ 600, 2000 });
    }

    CountingCanvas *add(const QString &kind, const QRectF &area)
    {
        auto *canvas = new CountingCanvas(page);
        canvas->setKind(kind);
        canvas->setPosition(area.topLeft());
        canvas->setSize(area.size());
        return canvas;
    }

    QImage frame() { return window.grabWindow(); }

    QQuickWindow window;
    QQuickItem *page = nullptr;
};

QImage painted(const QString &kind, QSize size)
{
    DiagramCanvas canvas;
    canvas.setKind(kind);
    canvas.setSize(size);
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter painter(&image);
    canvas.paint(&painter);
    return image;
}

} // namespace

TEST_F(DiagramCanvasTest, IsNotPaintedAgainWhileItIsScrolled)
{
    // given: drawings on the screen and below it
    QList<CountingCanvas *> canvases;
    for (int i = 0; i < 10; ++i)
        canvases.append(add(u"tripod"_s, { 0, i * 70.0, 100, 65 }));
    const QImage before = frame();
    for (const CountingCanvas *canvas : canvases)
        ASSERT_EQ(canvas->paints, 1);
    // when
    for (double y = 0; y >= -300; y -= 12.5) {
        page->setY(y);
        frame();
    }
    // then
    EXPECT_NE(frame(), before);
    for (const CountingCanvas *canvas : canvases)
        EXPECT_EQ(canvas->paints, 1);
}

TEST_F(DiagramCanvasTest, IsNotPaintedAgainForWhatItHasAlready)
{
    CountingCanvas *canvas = add(u"tripod"_s, { 0, 0, 100, 65 });
    frame();
    canvas->setKind(u"tripod"_s);
    canvas->setGlow(canvas->glow());
    canvas->setLabel(canvas->label());
    canvas->setSize({ 100, 65 });
    frame();
    EXPECT_EQ(canvas->paints, 1);
}

TEST_F(DiagramCanvasTest, IsPaintedAgainForEachChange)
{
    CountingCanvas *canvas = add(u"tripod"_s, { 0, 0, 100, 65 });
    frame();
    canvas->setKind(u"sensor"_s);
    frame();
    EXPECT_EQ(canvas->paints, 2);
    canvas->setGlow(Qt::red);
    frame();
    EXPECT_EQ(canvas->paints, 3);
    canvas->setLabel(Qt::green);
    frame();
    EXPECT_EQ(canvas->paints, 4);
    canvas->setSize({ 200, 130 });
    frame();
    EXPECT_EQ(canvas->paints, 5);
}

TEST_F(DiagramCanvasTest, PaintsWhatIsUnknownAsTheSensor)
{
    const QImage sensor = painted(u"sensor"_s, { 400, 260 });
    EXPECT_NE(painted(u"tripod"_s, { 400, 260 }), sensor);
    for (const QString &kind : { u"no-such-thing"_s, u"Tripod"_s, u""_s, QString(), u"tripod "_s,
             u"<b>tripod</b>"_s, QString(100000, u'x') }) {
        EXPECT_EQ(painted(kind, { 400, 260 }), sensor) << qPrintable(kind.left(20));
    }
}

TEST_F(DiagramCanvasTest, CutsCalloutsAtTheEdgeOfTheDrawing)
{
    // 400 × 260 in the middle of 800 × 260; a callout of the phone runs far to the right.
    const QImage image = painted(u"phone"_s, { 800, 260 });
    QImage blank(200, 260, image.format());
    blank.fill(Qt::black);
    EXPECT_EQ(image.copy(0, 0, 200, 260), blank);
    EXPECT_EQ(image.copy(600, 0, 200, 260), blank);
    EXPECT_NE(image.copy(590, 0, 10, 260), blank.copy(0, 0, 10, 260));
}

TEST_F(DiagramCanvasTest, IsAsHighAsItsWidthWants)
{
    const DiagramCanvas plain;
    EXPECT_EQ(QSizeF(plain.implicitWidth(), plain.implicitHeight()), QSizeF(400, 260));
    DiagramCanvas wide;
    wide.setWidth(500);
    EXPECT_EQ(wide.height(), 325);
    wide.setHeight(100);
    EXPECT_EQ(wide.height(), 100);
}

TEST_F(DiagramCanvasTest, HasTheColorsOfALitDisplayByDefault)
{
    const DiagramCanvas canvas;
    EXPECT_NEAR(canvas.glow().redF(), 0.55, 1e-4);
    EXPECT_NEAR(canvas.glow().greenF(), 0.85, 1e-4);
    EXPECT_NEAR(canvas.glow().blueF(), 1, 1e-4);
    EXPECT_EQ(canvas.glow().alphaF(), 1);
    EXPECT_NEAR(canvas.label().redF(), 0.86, 1e-4);
    EXPECT_NEAR(canvas.label().greenF(), 0.86, 1e-4);
    EXPECT_NEAR(canvas.label().blueF(), 0.86, 1e-4);
    EXPECT_EQ(canvas.label().alphaF(), 1);
}

TEST_F(DiagramCanvasTest, HasATextureAsFineAsTheScreen)
{
    CountingCanvas *canvas = add(u"tripod"_s, { 0, 0, 500, 325 });
    EXPECT_EQ(canvas->textureSize(), QSize(500, 325));
    canvas->parentItem()->setScale(2);
    EXPECT_EQ(canvas->textureSize(), QSize(1000, 650));
    canvas->parentItem()->setScale(1);
}

TEST_F(DiagramCanvasTest, NeverHasATextureOfMoreThan64Megabytes)
{
    DiagramCanvas canvas;
    canvas.setSize({ 8000, 8000 });
    EXPECT_EQ(canvas.textureSize(), QSize(4096, 4096));
    canvas.setSize({ 1, 10000 });
    EXPECT_EQ(canvas.textureSize(), QSize(1, 4096));
    canvas.setSize({ 8192, 4096 });
    EXPECT_EQ(canvas.textureSize(), QSize(4096, 2048));
    canvas.setSize({ 1e9, 1e9 });
    EXPECT_EQ(canvas.textureSize(), QSize(4096, 4096));
    canvas.setSize({ 500, 325 });
    EXPECT_EQ(canvas.textureSize(), QSize(500, 325));
}

TEST_F(DiagramCanvasTest, SurvivesEverySize)
{
    CountingCanvas *canvas = add(u"sensor"_s, { 0, 0, 100, 65 });
    for (const QSizeF size : { QSizeF(0, 0), QSizeF(0, 65), QSizeF(100, 0), QSizeF(-5, -5),
             QSizeF(1, 10000), QSizeF(10000, 1), QSizeF(8000, 8000), QSizeF(0.1, 0.1) }) {
        canvas->setSize(size);
        EXPECT_FALSE(frame().isNull());
    }
}

TEST_F(DiagramCanvasTest, WithoutExtentShowsNothing)
{
    CountingCanvas *canvas = add(u"sensor"_s, { 0, 0, 0, 0 });
    const QImage empty = frame();
    EXPECT_EQ(canvas->paints, 0);
    canvas->setSize({ 100, 65 });
    EXPECT_NE(frame(), empty);
}

TEST(DiagramCanvasLayout, FixedSizeKeepsTheDrawingsSizeAndItsCalloutsInside)
{
    for (const QString &kind : { u"tripod"_s, u"dslr"_s, u"film-35"_s, u"backpack"_s }) {
        DiagramCanvas canvas;
        canvas.setKind(kind);
        canvas.setLayout(DiagramCanvas::FixedSize);
        canvas.setDrawing({ 500, 325 });
        const QMarginsF overflow = calloutOverflow(*diagramKindNamed(kind), canvas.drawing());
        for (const qreal spare : { 0.0, 40.0, 300.0 }) {
            const QSizeF item(500 + canvas.calloutReach() + spare, 325);
            const QRectF drawing = canvas.canvasIn(item);
            EXPECT_EQ(drawing.size(), canvas.drawing());
            const QRectF needed = drawing.marginsAdded(overflow);
            EXPECT_GE(needed.left(), -0.001) << qPrintable(kind);
            EXPECT_LE(needed.right(), item.width() + 0.001) << qPrintable(kind);
        }
    }
}

TEST(DiagramCanvasLayout, FixedSizeStandsInTheMiddleWhereThereIsRoom)
{
    DiagramCanvas canvas;
    canvas.setKind(u"tripod"_s);
    canvas.setLayout(DiagramCanvas::FixedSize);
    canvas.setDrawing({ 500, 325 });
    EXPECT_EQ(canvas.canvasIn({ 1000, 325 }).center(), QPointF(500, 162.5));
}

TEST(DiagramCanvasLayout, WholeShowsEveryCalloutOfEveryDrawing)
{
    DiagramCanvas canvas;
    canvas.setLayout(DiagramCanvas::Whole);
    const QSizeF item(1000, 640);
    for (const Diagrams::Drawing &drawing : Diagrams::catalogue()) {
        canvas.setKind(rawValue(drawing.kind));
        const QRectF area = canvas.canvasIn(item);
        const QRectF needed = area.marginsAdded(calloutOverflow(drawing.kind, area.size()));
        EXPECT_GE(needed.left(), -0.001) << int(drawing.kind);
        EXPECT_LE(needed.right(), item.width() + 0.001) << int(drawing.kind);
        EXPECT_GE(needed.top(), -0.001) << int(drawing.kind);
        EXPECT_LE(needed.bottom(), item.height() + 0.001) << int(drawing.kind);
    }
}

TEST(DiagramCanvasLayout, TellsWhatTheCalloutsSay)
{
    DiagramCanvas canvas;
    canvas.setKind(u"tripod"_s);
    QStringList texts;
    for (const Diagrams::Callout &callout : Diagrams::drawing(DiagramKind::Tripod).callouts)
        texts.append(callout.text);
    EXPECT_FALSE(texts.isEmpty());
    EXPECT_EQ(canvas.calloutTexts(), texts);
}

TEST_F(DiagramCanvasTest, ThumbnailsThatLookAlikeArePaintedOnce)
{
    // given: a hundred thumbnails of one kind, of one color that no other test uses
    QList<CountingCanvas *> canvases;
    for (int i = 0; i < 100; ++i) {
        canvases.append(add(u"tripod"_s, { 10.0 * (i % 10), 3.0 * (i / 10), 42, 27 }));
        canvases.last()->setLayout(DiagramCanvas::Thumbnail);
        canvases.last()->setGlow(QColor(12, 200, 34));
    }
    // when: they are shown
    (void)frame();
    // then
    int paints = 0;
    for (const CountingCanvas *canvas : canvases)
        paints += canvas->paints;
    EXPECT_EQ(paints, 1);
}
