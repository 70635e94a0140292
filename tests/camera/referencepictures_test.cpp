// Six small parts against pictures of them that somebody has looked at.
//
// Each part is a QML file in reference/, painted with the software scene graph at its implicit
// size, with its picture beside it. A change of look that is wanted is taken over by
//
//     build/tests/camera/test_referencepictures --write
//
// which paints all pictures anew: look at each of them before it is committed.

#include "camera/hvcolors.h"
#include "kit/fonts.h"
#include "kit/kit.h"
#include "kit/preferences.h"
#include "kit/snapshotmode.h"
#include "selfcheck/offscreen.h"
#include "selfcheck/scenecamera.h"

#include <QDir>
#include <QFontInfo>
#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>

using namespace Qt::StringLiterals;

namespace {

// Rasterizers of fonts and shapes differ a little from version to version. A stroke that is missing
// or a tint that is another one is more than this.
constexpr int kSteps = 8;              // of 255, in any channel
constexpr double kOtherPixels = 0.005; // of all pixels

constexpr const char *kParts[] = { "Dial", "Button", "Card", "Leather", "Ring", "Callout" };

QString file(const QString &name)
{
    return QDir(QStringLiteral(HV_REFERENCE_PICTURES)).filePath(name);
}

QImage reference(const QString &part)
{
    return QImage(file(part.toLower() + ".png"_L1)).convertToFormat(QImage::Format_RGB32);
}

QImage painted(const QString &part)
{
    QQmlEngine engine;
    engine.addImportPath(u":/qt/qml"_s);
    SceneCamera camera(engine, QUrl::fromLocalFile(file(part + ".qml"_L1)));
    if (!camera.scene())
        return {};
    const QSizeF size(camera.scene()->implicitWidth(), camera.scene()->implicitHeight());
    return camera.take(size.toSize()).convertToFormat(QImage::Format_RGB32);
}

// The share of pixels that differ by more than kSteps; all of them if the sizes differ.
double difference(const QImage &one, const QImage &other)
{
    if (one.isNull() || one.size() != other.size())
        return 1;
    int differing = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            const int most = std::max({ std::abs(qRed(a) - qRed(b)),
                std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b)) });
            differing += most > kSteps;
        }
    }
    return double(differing) / (one.width() * one.height());
}

class ReferencePicture : public ::testing::TestWithParam<const char *>
{
};

bool writeAll()
{
    for (const char *part : kParts) {
        const QString path = file(QString::fromLatin1(part).toLower() + ".png"_L1);
        if (!painted(QString::fromLatin1(part)).save(path))
            return false;
        std::cout << "wrote " << qPrintable(path) << std::endl;
    }
    return true;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Part, ReferencePicture, ::testing::ValuesIn(kParts),
    [](const auto &part) { return std::string(part.param); });

TEST_P(ReferencePicture, IsWhatThePartLooksLike)
{
    if (QFontInfo(Fonts::rounded(12)).family() != "Inter"_L1)
        GTEST_SKIP() << "The pictures were taken with Inter.";
    const QString part = QString::fromLatin1(GetParam());
    const QImage now = painted(part);
    if (difference(reference(part), now) > kOtherPixels) {
        const QString path = QDir::temp().filePath("reference-"_L1 + part.toLower() + ".png"_L1);
        now.save(path);
        FAIL() << "see " << qPrintable(path);
    }
}

// The tolerance hides neither.
TEST_P(ReferencePicture, DiffersFromItselfOnePixelLowerOrWithARedCorner)
{
    const QImage whole = reference(QString::fromLatin1(GetParam()));
    ASSERT_FALSE(whole.isNull());
    EXPECT_EQ(difference(whole, whole), 0);
    QImage lower = whole;
    QPainter(&lower).drawImage(0, 1, whole);
    EXPECT_GT(difference(whole, lower), kOtherPixels);
    QImage tinted = whole;
    QPainter(&tinted).fillRect(0, 0, whole.width() / 8, whole.height() / 8, Qt::red);
    EXPECT_GT(difference(whole, tinted), kOtherPixels);
}

int main(int argc, char **argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    qputenv("QT_FONT_DPI", "72"); // as the program does: a design point is a logical pixel
    const OffscreenApplication application;
    Preferences::shared().keepInMemory();
    SnapshotMode::enable();
    CRVNKit::install({ .name = u"CRVN Halvorin"_s, .extraThemes = HVThemes::extras() });
    CRVNThemes::setCurrentID(HVThemes::brassID);

    if (argc > 1 && QLatin1String(argv[1]) == "--write"_L1)
        return writeAll() ? EXIT_SUCCESS : EXIT_FAILURE;
    return RUN_ALL_TESTS();
}
