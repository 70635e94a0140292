#include "kit/symbols.h"

#include <QColor>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <initializer_list>
#include <utility>
#include <vector>

namespace {

using Symbols::Weight;

constexpr std::array kWeights{ Weight::Regular, Weight::Medium, Weight::Semibold, Weight::Bold,
    Weight::Heavy, Weight::Black };

QImage blank(QSize size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QImage picture(
    QStringView name, int side, Weight weight = Weight::Regular, const QColor &ink = Qt::black)
{
    QImage image = blank({ side, side });
    QPainter painter(&image);
    Symbols::paint(painter, name, QRectF(0, 0, side, side), ink, weight);
    return image;
}

/// The sum of all opacities in `area`, in fully covered pixels.
double inked(const QImage &image, const QRect &area)
{
    double sum = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            sum += qAlpha(image.pixel(x, y)) / 255.0;
    }
    return sum;
}

double inked(const QImage &image)
{
    return inked(image, image.rect());
}

/// The smallest rectangle outside which no pixel is covered by as much as a third.
QRect extent(const QImage &image)
{
    QRect box;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 85)
                box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

TEST(Symbols, ListsItsNamesSortedAndOnce)
{
    const QStringList names = Symbols::names();
    EXPECT_TRUE(std::ranges::is_sorted(names));
    EXPECT_EQ(std::ranges::adjacent_find(names), names.end());
}

TEST(Symbols, ContainsWhatItLists)
{
    for (const QString &name : Symbols::names())
        EXPECT_TRUE(Symbols::contains(name)) << qPrintable(name);
}

TEST(Symbols, ContainsTheSymbolsOfTheNineScreens)
{
    for (const QStringView name : { u"building.columns", u"graduationcap", u"camera.aperture",
             u"circle.circle", u"clock.arrow.circlepath", u"books.vertical",
             u"arrow.triangle.branch", u"play.rectangle", u"note.text" })
        EXPECT_TRUE(Symbols::contains(name)) << qPrintable(name.toString());
}

TEST(Symbols, DoesNotContainOtherNames)
{
    for (const QStringView name : { u"", u"camer", u"cameras", u"Camera", u"zebra", u"a" })
        EXPECT_FALSE(Symbols::contains(name)) << qPrintable(name.toString());
    EXPECT_FALSE(Symbols::contains({}));
}

TEST(Symbols, PaintNothingUnderAnUnknownName)
{
    EXPECT_EQ(inked(picture(u"zebra", 64)), 0);
    EXPECT_EQ(inked(picture({}, 64)), 0);
}

TEST(Symbols, FillTheirBoxWithoutTouchingItsEdge)
{
    for (const QString &name : Symbols::names()) {
        for (const Weight weight : kWeights) {
            const QImage image = picture(name, 64, weight);
            const double all = inked(image);
            EXPECT_GT(all, 64) << qPrintable(name);
            EXPECT_EQ(inked(image, image.rect().adjusted(1, 1, -1, -1)), all) << qPrintable(name);
            // Even the smallest, a chevron, spans more than half the box.
            const QSize size = extent(image).size();
            EXPECT_GT(std::max(size.width(), size.height()), 32) << qPrintable(name);
        }
    }
}

TEST(Symbols, StayInsideTheirBox)
{
    const QRect box(20, 30, 16, 16);
    for (const QString &name : Symbols::names()) {
        QImage image = blank({ 64, 64 });
        QPainter painter(&image);
        Symbols::paint(painter, name, box, Qt::black, Weight::Black);
        painter.end();
        EXPECT_EQ(inked(image, box), inked(image)) << qPrintable(name);
    }
}

TEST(Symbols, AreFittedIntoTheMiddleOfAnOblongBox)
{
    for (const auto &[box, square] : std::initializer_list<std::pair<QRect, QRect>>{
             { { 4, 4, 56, 20 }, { 22, 4, 20, 20 } }, { { 4, 4, 20, 56 }, { 4, 22, 20, 20 } } }) {
        for (const QString &name : Symbols::names()) {
            QImage oblong = blank({ 64, 64 });
            QImage exact = oblong;
            QPainter first(&oblong);
            Symbols::paint(first, name, box, Qt::black);
            first.end();
            QPainter second(&exact);
            Symbols::paint(second, name, square, Qt::black);
            second.end();
            EXPECT_EQ(oblong, exact) << qPrintable(name);
        }
    }
}

TEST(Symbols, PaintNothingIntoAnEmptyBox)
{
    QImage image = blank({ 64, 64 });
    QPainter painter(&image);
    for (const QString &name : Symbols::names()) {
        for (const QRectF &box : { QRectF(), QRectF(32, 32, 0, 0), QRectF(8, 8, 0, 32),
                 QRectF(8, 8, 32, 0), QRectF(40, 40, -16, -16) })
            Symbols::paint(painter, name, box, Qt::black);
    }
    painter.end();
    EXPECT_EQ(inked(image), 0);
}

TEST(Symbols, PaintNothingThroughAPainterScaledToNothing)
{
    QImage image = blank({ 64, 64 });
    QPainter painter(&image);
    painter.scale(0, 0);
    for (const QString &name : Symbols::names())
        Symbols::paint(painter, name, QRectF(0, 0, 64, 64), Qt::black);
    painter.end();
    EXPECT_EQ(inked(image), 0);
}

TEST(Symbols, InkMoreWithEachWeight)
{
    for (const QString &name : Symbols::names()) {
        double lighter = 0;
        for (const Weight weight : kWeights) {
            const double heavier = inked(picture(name, 64, weight));
            EXPECT_GT(heavier, lighter) << qPrintable(name);
            lighter = heavier;
        }
    }
}

TEST(Symbols, InkMoreFilledThanOutlined)
{
    for (const auto &[filled, outlined] :
        std::initializer_list<std::pair<QStringView, QStringView>>{
            { u"bookmark.fill", u"bookmark" }, { u"checkmark.circle.fill", u"circle" },
            { u"xmark.circle.fill", u"circle" },
            { u"largecircle.fill.circle", u"circle.circle" } }) {
        for (const Weight weight : kWeights)
            EXPECT_GT(inked(picture(filled, 64, weight)), inked(picture(outlined, 64, weight)))
                << qPrintable(filled.toString());
    }
}

TEST(Symbols, AllLookDifferent)
{
    for (const int side : { 14, 64 }) {
        const QStringList names = Symbols::names();
        std::vector<QImage> pictures;
        for (const QString &name : names)
            pictures.push_back(picture(name, side));
        for (size_t i = 0; i < pictures.size(); ++i) {
            for (size_t j = i + 1; j < pictures.size(); ++j)
                EXPECT_NE(pictures[i], pictures[j])
                    << qPrintable(names[qsizetype(i)]) << " " << qPrintable(names[qsizetype(j)]);
        }
    }
}

TEST(Symbols, LetTheBackgroundShowThroughTheMarkOnADisc)
{
    const QImage image = picture(u"xmark.circle.fill", 64);
    EXPECT_EQ(qAlpha(image.pixel(32, 32)), 0);
    EXPECT_EQ(qAlpha(image.pixel(32, 16)), 255);
}

TEST(Symbols, WearTheirInkEvenlyWhereStrokesCross)
{
    const QColor half(255, 0, 0, 128);
    for (const QString &name : Symbols::names()) {
        const QImage image = picture(name, 64, Weight::Bold, half);
        int most = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QRgb pixel = image.pixel(x, y);
                most = std::max(most, qAlpha(pixel));
                EXPECT_EQ(qGreen(pixel) + qBlue(pixel), 0) << qPrintable(name);
            }
        }
        EXPECT_EQ(most, 128) << qPrintable(name);
    }
}

TEST(Symbols, DrawALevelStrokeOnWholePixelsAtSizesOfText)
{
    for (int side = 11; side <= 16; ++side) {
        const QImage image = picture(u"minus", side);
        std::vector<int> column;
        for (int y = 0; y < side; ++y)
            column.push_back(qAlpha(image.pixel(side / 2, y)));
        std::ranges::sort(column, std::greater());
        EXPECT_GT(column[0], 0.75 * 255) << side;
        EXPECT_LT(column[1], 0.1 * 255) << side;
    }
}

TEST(Symbols, AreAsSharpBetweenPixelsAsOnThem)
{
    for (const double shift : { 0.2, 0.5, 0.8 }) {
        QImage image = blank({ 20, 20 });
        QPainter painter(&image);
        painter.translate(shift, shift);
        Symbols::paint(painter, u"plus", QRectF(2, 2, 14, 14), Qt::black);
        painter.end();
        std::vector<int> across;
        for (int x = 0; x < image.width(); ++x)
            across.push_back(qAlpha(image.pixel(x, 6)));
        std::ranges::sort(across, std::greater());
        EXPECT_GT(across[0], 0.9 * 255) << shift;
        EXPECT_LT(across[1], 0.1 * 255) << shift;
    }
}

TEST(Symbols, KeepRingsRoundAtSizesOfText)
{
    for (const QStringView name : { u"circle", u"circle.circle", u"info.circle",
             u"questionmark.circle", u"checkmark.circle.fill", u"camera.aperture" }) {
        for (int side = 11; side <= 32; ++side) {
            for (const Weight weight : kWeights) {
                const QSize size = extent(picture(name, side, weight)).size();
                EXPECT_EQ(size.width(), size.height())
                    << qPrintable(name.toString()) << " at " << side;
            }
        }
    }
}

TEST(Symbols, PaintThroughARotatedPainter)
{
    QImage image = blank({ 64, 64 });
    QPainter painter(&image);
    painter.translate(32, 32);
    painter.rotate(90);
    Symbols::paint(painter, u"chevron.right", QRectF(-32, -32, 64, 64), Qt::black);
    painter.end();
    EXPECT_NEAR(inked(image), inked(picture(u"chevron.down", 64)), 8);
}

TEST(Symbols, LeaveThePainterAsItWas)
{
    QImage image = blank({ 64, 64 });
    QPainter painter(&image);
    painter.setPen(Qt::red);
    painter.setBrush(Qt::green);
    painter.translate(3, 5);
    const QTransform transform = painter.transform();
    const QPainter::RenderHints hints = painter.renderHints();
    for (const QString &name : Symbols::names())
        Symbols::paint(painter, name, QRectF(0, 0, 32, 32), Qt::black);
    EXPECT_EQ(painter.transform(), transform);
    EXPECT_EQ(painter.renderHints(), hints);
    EXPECT_EQ(painter.pen(), QPen(Qt::red));
    EXPECT_EQ(painter.brush(), QBrush(Qt::green));
}

} // namespace
