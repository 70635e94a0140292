#include "shell/screen.h"

#include "shell/screenprinter.h"
#include "support/qtprinters.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Row {
    Screen screen;
    QString rawValue;
    QString title;
    QString shortTitle;
    QString symbol;
};

const QList<Row> kTable = {
    { Screen::Home, u"home"_s, u"Campus"_s, u"HOME"_s, u"building.columns"_s },
    { Screen::Course, u"course"_s, u"Course"_s, u"LEARN"_s, u"graduationcap"_s },
    { Screen::Exposure, u"exposure"_s, u"Exposure Lab"_s, u"EXPO"_s, u"camera.aperture"_s },
    { Screen::Lens, u"lens"_s, u"Lens Lab"_s, u"LENS"_s, u"circle.circle"_s },
    { Screen::History, u"history"_s, u"History"_s, u"HIST"_s, u"clock.arrow.circlepath"_s },
    { Screen::Gear, u"gear"_s, u"Gear Encyclopedia"_s, u"GEAR"_s, u"books.vertical"_s },
    { Screen::Workflow, u"workflow"_s, u"Workflows & Software"_s, u"FLOW"_s,
        u"arrow.triangle.branch"_s },
    { Screen::Videos, u"videos"_s, u"Video Library"_s, u"VIDEO"_s, u"play.rectangle"_s },
    { Screen::Notes, u"notes"_s, u"My Notes & Progress"_s, u"NOTES"_s, u"note.text"_s },
};

} // namespace

TEST(Screens, StandInTheOrderOfTheDial)
{
    QList<Screen> order;
    for (const ScreenInfo &info : allScreens())
        order.append(info.screen);
    EXPECT_EQ(order,
        (QList<Screen>{ Screen::Home, Screen::Course, Screen::Exposure, Screen::Lens,
            Screen::History, Screen::Gear, Screen::Workflow, Screen::Videos, Screen::Notes }));
}

TEST(Screens, AreCalledByTheirNamesInEveryPlace)
{
    for (const Row &row : kTable) {
        SCOPED_TRACE(qPrintable(row.rawValue));
        const ScreenInfo &info = screenInfo(row.screen);
        EXPECT_EQ(info.screen, row.screen);
        EXPECT_EQ(info.rawValue, row.rawValue);
        EXPECT_EQ(info.title, row.title);
        EXPECT_EQ(info.shortTitle, row.shortTitle);
        EXPECT_EQ(info.symbol, row.symbol);
    }
}

TEST(ScreenNamed, FindsEachScreenByItsRawValue)
{
    for (const Row &row : kTable)
        EXPECT_EQ(screenNamed(row.rawValue), row.screen);
}

TEST(ScreenNamed, FindsNothingForAnyOtherText)
{
    for (const QString &text :
        { u""_s, u"Home"_s, u"Campus"_s, u"HOME"_s, u" home"_s, u"hom"_s, u"homes"_s, u"0"_s })
        EXPECT_EQ(screenNamed(text), std::nullopt) << qPrintable(text);
}

TEST(ScreenAfter, GoesOnePlaceFurtherInBothDirections)
{
    for (qsizetype place = 1; place < kTable.size(); ++place) {
        EXPECT_EQ(screenAfter(kTable[place - 1].screen, 1), kTable[place].screen);
        EXPECT_EQ(screenAfter(kTable[place].screen, -1), kTable[place - 1].screen);
    }
}

TEST(ScreenAfter, GoesFromTheLastScreenToTheFirst)
{
    EXPECT_EQ(screenAfter(Screen::Notes, 1), Screen::Home);
}

TEST(ScreenAfter, GoesFromTheFirstScreenBackToTheLast)
{
    EXPECT_EQ(screenAfter(Screen::Home, -1), Screen::Notes);
}

TEST(ScreenAfter, StaysAfterNoPlaceAndAfterAWholeTurn)
{
    for (const Row &row : kTable) {
        EXPECT_EQ(screenAfter(row.screen, 0), row.screen);
        EXPECT_EQ(screenAfter(row.screen, 9), row.screen);
        EXPECT_EQ(screenAfter(row.screen, -9), row.screen);
    }
}

TEST(ScreenAfter, GoesSeveralPlacesAcrossTheEnd)
{
    EXPECT_EQ(screenAfter(Screen::Videos, 3), Screen::Course);
    EXPECT_EQ(screenAfter(Screen::Course, -3), Screen::Videos);
}
