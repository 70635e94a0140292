#include "camera/appicon.h"

#include "kit/printing.h"
#include "kit/themes.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

namespace {

constexpr int kSizes[] = { 16, 22, 24, 32, 48, 64, 128, 256, 512 };

QImage blank(int side)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QImage picture(int side)
{
    QImage image = blank(side);
    QPainter painter(&image);
    AppIcon::paint(painter, side);
    return image;
}

double luminance(QRgb pixel)
{
    return CRVNTheme::RGB(pixel & 0xFFFFFF).luminance();
}

// The aperture's center, as a fraction of the side: in the middle where it is all there is, lower
// where the camera has a top plate.
QPointF lightOf(int side)
{
    return side <= 24 ? QPointF(0.5, 0.5) : QPointF(0.5, 0.607);
}

// The mean luminance on a circle around the light.
double luminanceAround(const QImage &image, double radius)
{
    constexpr int kPoints = 360;
    const QPointF center = lightOf(image.width()) * image.width();
    double sum = 0;
    for (int i = 0; i < kPoints; ++i) {
        const double angle = 2 * std::numbers::pi * i / kPoints;
        const QPointF at
            = center + radius * image.width() * QPointF(std::cos(angle), std::sin(angle));
        sum += luminance(image.pixel(int(at.x()), int(at.y())));
    }
    return sum / kPoints;
}

QByteArray fileInPackaging(const QString &name)
{
    QFile file(QStringLiteral(HV_TEST_PACKAGING "/") + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

TEST(AppIcon, LeavesItsCornersClear)
{
    for (const int side : kSizes) {
        const QImage image = picture(side);
        for (const QPoint corner :
            { QPoint(0, 0), QPoint(side - 1, 0), QPoint(0, side - 1), QPoint(side - 1, side - 1) })
            EXPECT_EQ(qAlpha(image.pixel(corner)), 0) << side;
    }
}

TEST(AppIcon, FillsItsSquare)
{
    for (const int side : kSizes) {
        const QImage image = picture(side);
        // Opaque from a sixteenth of the side on, along both middle lines.
        const int edge = qCeil(side / 16.0);
        for (int i = edge; i < side - edge; ++i) {
            EXPECT_EQ(qAlpha(image.pixel(i, side / 2)), 255) << side << ": " << i;
            EXPECT_EQ(qAlpha(image.pixel(side / 2, i)), 255) << side << ": " << i;
        }
    }
}

TEST(AppIcon, IsLitThroughItsAperture)
{
    for (const int side : kSizes) {
        const QImage image = picture(side);
        const QPointF center = lightOf(side) * side;
        const double light = luminance(image.pixel(int(center.x()), int(center.y())));
        EXPECT_GT(light, 0.6) << side;
        // Near the ends of the blades.
        const double blades = luminanceAround(image, side <= 24 ? 0.32 : 0.19);
        EXPECT_GT(light, 4 * blades) << side;
    }
}

TEST(AppIcon, HasATopPlateWhereThereIsRoomForOne)
{
    // The shutter button is warm, the plate around it gray.
    const auto warmth = [](int side) {
        const QColor color = picture(side).pixelColor(qRound(side * 0.785), qRound(side * 0.19));
        return color.red() - color.blue();
    };
    for (const int side : { 32, 48, 64, 128, 256, 512 })
        EXPECT_GT(warmth(side), 60) << side;
    for (const int side : { 32, 48, 64, 128, 256, 512 }) {
        const QColor plate = picture(side).pixelColor(qRound(side * 0.55), qRound(side * 0.27));
        EXPECT_LT(plate.red() - plate.blue(), 20) << side;
    }
}

TEST(AppIcon, IsTheSameAtEveryCall)
{
    for (const int side : kSizes)
        EXPECT_EQ(picture(side), picture(side)) << side;
    EXPECT_EQ(AppIcon::svg(), AppIcon::svg());
}

TEST(AppIcon, HasThePartsThatTheDeviceHasRoomFor)
{
    // A square of 16 points on a device with 32 pixels for them.
    QImage scaled = blank(32);
    QPainter scaling(&scaled);
    scaling.scale(2, 2);
    AppIcon::paint(scaling, 16);
    scaling.end();
    EXPECT_EQ(scaled, picture(32));

    QImage dense = blank(256);
    dense.setDevicePixelRatio(2);
    QPainter painter(&dense);
    AppIcon::paint(painter, 128);
    painter.end();
    dense.setDevicePixelRatio(1);
    EXPECT_EQ(dense, picture(256));
}

TEST(AppIcon, LeavesThePainterAsItWas)
{
    QImage image = blank(64);
    QPainter painter(&image);
    painter.setPen(Qt::red);
    painter.setBrush(Qt::green);
    painter.translate(3, 5);
    const QTransform before = painter.transform();
    AppIcon::paint(painter, 32);
    EXPECT_EQ(painter.pen(), QPen(Qt::red));
    EXPECT_EQ(painter.brush(), QBrush(Qt::green));
    EXPECT_EQ(painter.transform(), before);
    EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
}

TEST(AppIcon, PaintsNothingOnNoRoom)
{
    for (const double side : { 0.0, -16.0, std::nan("") }) {
        QImage image = blank(16);
        QPainter painter(&image);
        AppIcon::paint(painter, side);
        painter.end();
        EXPECT_EQ(image, blank(16)) << side;
    }
}

TEST(AppIcon, IsAFileThatEveryReaderOfVectorsUnderstands)
{
    QXmlStreamReader reader(AppIcon::svg());
    QStringList gradients;
    int paths = 0;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes attributes = reader.attributes();
        if (reader.name().endsWith("Gradient"_L1))
            gradients.append(attributes.value("id"_L1).toString());
        if (reader.name() != "path"_L1)
            continue;
        ++paths;
        EXPECT_TRUE(attributes.value("d"_L1).startsWith(u'M'));
        for (const QStringView paint :
            { attributes.value("fill"_L1), attributes.value("stroke"_L1) }) {
            if (paint.startsWith("url(#"_L1))
                EXPECT_TRUE(gradients.contains(paint.sliced(5).chopped(1)))
                    << qPrintable(paint.toString());
            else
                EXPECT_TRUE(paint.isEmpty() || paint == "none"_L1 || paint.startsWith(u'#'))
                    << qPrintable(paint.toString());
        }
    }
    EXPECT_FALSE(reader.hasError()) << qPrintable(reader.errorString());
    EXPECT_GT(paths, 20);
}

// `build/tools/appicon packaging` writes these again after a change of the drawing.

TEST(AppIcon, StandsInPackagingAsItIsDrawn)
{
    EXPECT_EQ(fileInPackaging(u"crvn-halvorin.svg"_s), AppIcon::svg());
}

TEST(AppIcon, StandsInPackagingInEverySize)
{
    for (const int side : kSizes) {
        const QImage packed
            = QImage::fromData(fileInPackaging(u"icons/crvn-halvorin-%1.png"_s.arg(side)))
                  .convertToFormat(QImage::Format_ARGB32_Premultiplied);
        ASSERT_EQ(packed.size(), QSize(side, side));
        // Another version of Qt may round a pixel at an edge otherwise.
        const QImage drawn = picture(side);
        qint64 difference = 0;
        for (qsizetype i = 0; i < drawn.sizeInBytes(); ++i)
            difference += std::abs(drawn.constBits()[i] - packed.constBits()[i]);
        EXPECT_LT(double(difference) / double(drawn.sizeInBytes()), 0.5) << side;
    }
}
