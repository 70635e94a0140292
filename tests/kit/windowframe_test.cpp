#include "kit/windowframe.h"

#include "kit/printing.h"

#include <gtest/gtest.h>

#include <ostream>

using namespace Qt::StringLiterals;

namespace {

const QSize kMinimum(900, 648);
const QRect kLaptop(0, 32, 1440, 868);
const QRect kBeside(1440, 0, 2560, 1440);

} // namespace

void PrintTo(const WindowPlace &place, std::ostream *out)
{
    *out << place.size.width() << " x " << place.size.height();
    if (place.position)
        *out << " at " << place.position->x() << ", " << place.position->y();
}

TEST(WindowFrame, IsTheSameAfterItWasKept)
{
    for (const WindowFrame &frame : { WindowFrame{ QRect(120, 80, 1440, 948) },
             WindowFrame{ QRect(-1800, -20, 900, 648), true } })
        EXPECT_EQ(WindowFrame::fromText(frame.text()), frame);
}

TEST(WindowFrame, IsReadFromNothingElse)
{
    for (const char *text : { "", "wide", "1 2 3", "1 2 3 4 5", "1 2 3 x", "10 10 0 400",
             "10 10 -5 400", "0 0 0 0", "1 2 300 400 minimized", "1e3 2 300 400",
             "0 0 99999999999 400", "2000000000 0 2000000000 400" })
        EXPECT_EQ(WindowFrame::fromText(QString::fromLatin1(text)), std::nullopt) << text;
}

TEST(WindowPlace, IsTheOldOneWhereThereStillIsAScreen)
{
    const QRect area(1600, 100, 1200, 900);
    EXPECT_EQ(placeOn({ kLaptop, kBeside }, area, kMinimum),
        (WindowPlace{ .size = area.size(), .position = area.topLeft() }));
}

TEST(WindowPlace, IsLeftToTheDesktopWhereNoScreenIsAnyMore)
{
    const QRect area(1600, 100, 1200, 700);
    EXPECT_EQ(placeOn({ kLaptop }, area, kMinimum), (WindowPlace{ .size = area.size() }));
    EXPECT_EQ(placeOn({}, area, kMinimum), (WindowPlace{ .size = area.size() }));
}

TEST(WindowPlace, NeedsAnUpperEdgeToTakeTheWindowBy)
{
    const QSize size(1000, 700);
    const auto hasPlace = [&](int x, int y) {
        return placeOn({ kLaptop }, QRect(QPoint(x, y), size), kMinimum).position.has_value();
    };
    EXPECT_TRUE(hasPlace(1440 - 96, 32));
    EXPECT_FALSE(hasPlace(1440 - 95, 32));
    EXPECT_TRUE(hasPlace(96 - 1000, 200));
    EXPECT_FALSE(hasPlace(95 - 1000, 200));
    EXPECT_FALSE(hasPlace(100, 31));
    EXPECT_TRUE(hasPlace(100, 900 - 24));
    EXPECT_FALSE(hasPlace(100, 900 - 23));
}

TEST(WindowPlace, IsNoLargerThanTheScreenAndNoSmallerThanTheLayout)
{
    EXPECT_EQ(placeOn({ kLaptop }, QRect(0, 40, 4000, 3000), kMinimum).size, kLaptop.size());
    EXPECT_EQ(placeOn({ kLaptop }, QRect(0, 40, 20, 10), kMinimum).size, kMinimum);
    EXPECT_EQ(placeOn({ QRect(0, 0, 640, 480) }, QRect(0, 0, 1440, 948), kMinimum).size, kMinimum);
}

TEST(WindowRoom, IsTheScreenUnderATitleBar)
{
    EXPECT_EQ(roomOn(QRect(0, 0, 1920, 1080)), QSize(1920, 1040));
    EXPECT_EQ(roomOn(QRect(-800, 32, 800, 568)), QSize(800, 528));
}
