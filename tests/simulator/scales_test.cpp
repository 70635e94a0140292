#include "simulator/scales.h"

#include "simulator/exposure.h"

#include "support/qtprinters.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Shutter, IsWrittenAsOnACamerasDisplay)
{
    EXPECT_EQ(Shutter{ 0.008 }.label(), u"1/125"_s);
    EXPECT_EQ(Shutter{ 2 }.label(), u"2\""_s);
    EXPECT_EQ(Shutter{ 2.5 }.label(), u"2.5\""_s);
    EXPECT_EQ(Shutter{ 0.5 }.label(), u"0.5\""_s);
    EXPECT_EQ(Shutter{ 1 }.label(), u"1\""_s);
}

TEST(Shutter, WritesTheWholeScale)
{
    QStringList labels;
    for (const Shutter &shutter : Exposure::shutters)
        labels.append(shutter.label());
    const QStringList expected
        = u"30\" 25\" 20\" 15\" 13\" 10\" 8\" 6\" 5\" 4\" 3.2\" 2.5\" 2\" "
          u"1.6\" 1.3\" 1\" 0.8\" 0.6\" 0.5\" 0.4\" 0.3\" 1/4 1/5 1/6 1/8 "
          u"1/10 1/13 1/15 1/20 1/25 1/30 1/40 1/50 1/60 1/80 1/100 1/125 "
          u"1/160 1/200 1/250 1/320 1/400 1/500 1/640 1/800 1/1000 1/1250 "
          u"1/1600 1/2000 1/2500 1/3200 1/4000 1/5000 1/6400 1/8000"_s.split(u' ');
    EXPECT_EQ(labels, expected);
}

TEST(Shutter, TurnsToFractionsBelowThreeTenths)
{
    EXPECT_EQ(Shutter{ 0.3 }.label(), u"0.3\""_s);
    EXPECT_EQ(Shutter{ 0.29 }.label(), u"1/3"_s);
    EXPECT_EQ(Shutter{ 0.25 }.label(), u"1/4"_s);
    EXPECT_EQ(Shutter{ 0.99 }.label(), u"0.10\""_s);
}

TEST(Shutter, RoundsTiesOfLongTimesToTheEvenDigit)
{
    EXPECT_EQ(Shutter{ 2.25 }.label(), u"2.2\""_s);
    EXPECT_EQ(Shutter{ 2.75 }.label(), u"2.8\""_s);
}

TEST(Shutter, IsEqualBySeconds)
{
    EXPECT_EQ(Shutter{ 1.0 / 125 }, Shutter{ 0.008 });
    EXPECT_NE(Shutter{ 1.0 / 125 }, Shutter{ 1.0 / 160 });
}

TEST(LightLevel, StandsInATableFromSnowToTheMoon)
{
    struct Row {
        QString id;
        QString name;
        double ev;
    };
    const std::vector<Row> expected{
        { u"snow"_s, u"Sun on snow or sand"_s, 16 },
        { u"sun"_s, u"Full sun (\"sunny 16\")"_s, 15 },
        { u"overcast"_s, u"Bright overcast"_s, 13 },
        { u"shade"_s, u"Open shade / heavy overcast"_s, 12 },
        { u"stadium"_s, u"Floodlit stadium at night"_s, 9 },
        { u"office"_s, u"Bright office or gym"_s, 8 },
        { u"home"_s, u"Living room at night"_s, 6 },
        { u"street"_s, u"Night street, shop windows"_s, 5 },
        { u"candle"_s, u"Candlelight close up"_s, 4 },
        { u"moon"_s, u"Full-moon landscape"_s, -3 },
    };
    const auto levels = LightLevel::all();
    ASSERT_EQ(levels.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(levels[i].id, expected[i].id);
        EXPECT_EQ(levels[i].name, expected[i].name);
        EXPECT_EQ(levels[i].ev, expected[i].ev);
    }
}

TEST(LightLevel, IsFoundByItsId)
{
    for (const LightLevel &level : LightLevel::all())
        EXPECT_EQ(LightLevel::named(level.id), level);
}

TEST(LightLevel, IsFullSunForAnUnknownId)
{
    for (const QString &id : { u""_s, u"Sun"_s, u"dusk"_s })
        EXPECT_EQ(LightLevel::named(id).id, u"sun"_s);
}

TEST(SensorFormat, DerivesDiagonalCircleOfConfusionAndCrop)
{
    struct Row {
        const SensorFormat &format;
        double diagonal, coc, crop;
    };
    for (const Row &row : {
             Row{ SensorFormat::fullFrame(), 43.267, 0.02884, 1.000 },
             Row{ SensorFormat::apsc(), 28.207, 0.01880, 1.534 },
             Row{ SensorFormat::mft(), 21.640, 0.01443, 1.999 },
             Row{ SensorFormat::oneInch(), 15.864, 0.01058, 2.727 },
             Row{ SensorFormat::mf4433(), 55.000, 0.03667, 0.787 },
             Row{ SensorFormat::film66(), 79.196, 0.05280, 0.546 },
         }) {
        EXPECT_NEAR(row.format.diagonal(), row.diagonal, 0.0005);
        EXPECT_NEAR(row.format.coc(), row.coc, 0.000005);
        EXPECT_NEAR(row.format.crop(), row.crop, 0.0005);
    }
    EXPECT_NEAR(SensorFormat::fullFrame().crop(), 0.99999965, 1e-8);
}

TEST(SensorFormat, HasNamesForTheRowsOfItsTable)
{
    EXPECT_EQ(SensorFormat::apsc().id, u"apsc"_s);
    EXPECT_EQ(SensorFormat::mft().id, u"mft"_s);
    EXPECT_EQ(SensorFormat::oneInch().id, u"1in"_s);
    EXPECT_EQ(SensorFormat::mf4433().id, u"mf"_s);
    EXPECT_EQ(SensorFormat::film66().id, u"66"_s);
}
