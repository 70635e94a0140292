#include "kit/fonts.h"

#include "kit/printing.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QImage>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// The first of these families that is installed, or nothing.
QString firstInstalled(const QStringList &families)
{
    const auto found = std::ranges::find_if(
        families, [](const QString &family) { return QFontDatabase::hasFamily(family); });
    return found != families.end() ? *found : QString();
}

} // namespace

TEST(RoundedFont, IsTheFirstInstalledOfTheFamiliesToChooseFrom)
{
    const QString family = firstInstalled({ u".AppleSystemUIFontRounded"_s, u"SF Pro Rounded"_s,
        u"Nunito"_s, u"Inter"_s, u"DejaVu Sans"_s });
    if (family.isEmpty())
        GTEST_SKIP() << "None of them is installed here";
    EXPECT_EQ(Fonts::rounded(12).family(), family);
    EXPECT_EQ(QFontInfo(Fonts::rounded(12)).family(), family);
}

TEST(MonospacedFont, IsTheFirstInstalledOfTheFamiliesToChooseFrom)
{
    const QString family = firstInstalled({ u"JetBrains Mono"_s, u"DejaVu Sans Mono"_s });
    if (family.isEmpty())
        GTEST_SKIP() << "None of them is installed here";
    EXPECT_EQ(Fonts::monospaced(12).family(), family);
    EXPECT_EQ(QFontInfo(Fonts::monospaced(12)).family(), family);
}

TEST(RoundedFont, HasSizeWeightAndTracking)
{
    const QFont font = Fonts::rounded(16.5, QFont::ExtraBold, 1.4);
    EXPECT_EQ(font.pointSizeF(), 16.5);
    EXPECT_EQ(font.weight(), QFont::ExtraBold);
    EXPECT_EQ(font.letterSpacingType(), QFont::AbsoluteSpacing);
    // Fonts keep such lengths in 64ths of a point.
    EXPECT_NEAR(font.letterSpacing(), 1.4, 1 / 64.0);
}

TEST(RoundedFont, IsOfRegularWeightAndUntrackedIfNothingElseIsAsked)
{
    const QFont font = Fonts::rounded(14);
    EXPECT_EQ(font.weight(), QFont::Normal);
    EXPECT_EQ(font.letterSpacing(), 0);
    EXPECT_FALSE(font.italic());
}

TEST(RoundedFont, TrackingWidensEachLetterByItsPoints)
{
    // One design point is one pixel.
    const QFontMetricsF plain(Fonts::rounded(20, QFont::Bold));
    const QFontMetricsF tracked(Fonts::rounded(20, QFont::Bold, 2));
    EXPECT_NEAR(tracked.horizontalAdvance(u"CRVN"_s) - plain.horizontalAdvance(u"CRVN"_s), 8, 0.01);
}

TEST(RoundedFont, HasEveryCharacterThatTheScreensUse)
{
    const QFontMetrics metrics(Fonts::rounded(14));
    for (const QChar character : u"→−×÷²₂✓•·…—–“”’ƒ"_s)
        EXPECT_TRUE(metrics.inFont(character)) << qPrintable(QString(character));
}

TEST(MonospacedFont, HasSizeAndWeight)
{
    const QFont font = Fonts::monospaced(11, QFont::Bold);
    EXPECT_EQ(font.pointSizeF(), 11);
    EXPECT_EQ(font.weight(), QFont::Bold);
    EXPECT_EQ(Fonts::monospaced(11).weight(), QFont::Normal);
}

TEST(MonospacedFont, GivesAllFiguresOneWidth)
{
    const QFontMetricsF metrics(Fonts::monospaced(13, QFont::ExtraBold));
    const double width = metrics.horizontalAdvance(u'0');
    ASSERT_GT(width, 0);
    for (const QChar character : u"123456789/.iW"_s)
        EXPECT_EQ(metrics.horizontalAdvance(character), width) << qPrintable(QString(character));
}

TEST(FontInPixels, IsAsLargeInAControlOfAPlatformThatThinksOfAnotherScreen)
{
    // given: the platform's font, made for 100 dots per inch
    QImage screen(1, 1, QImage::Format_RGB32);
    screen.setDotsPerMeterX(3937);
    screen.setDotsPerMeterY(3937);
    const QFont platforms(QFont(), &screen);
    const auto heightIn = [&platforms](const QFont &font) {
        return QFontInfo(font.resolve(platforms)).pixelSize();
    };
    const QFont inPoints = Fonts::rounded(13, QFont::Medium);
    ASSERT_NE(heightIn(inPoints), 13);
    // when, then
    EXPECT_EQ(heightIn(Fonts::inPixels(inPoints)), 13);
    EXPECT_EQ(Fonts::inPixels(inPoints).family(), inPoints.family());
    EXPECT_EQ(Fonts::inPixels(inPoints).weight(), QFont::Medium);
    EXPECT_EQ(heightIn(Fonts::inPixels(Fonts::rounded(13.5))), 14);
}
