#include "shell/qml/screenlist.h"

#include "shell/screen.h"
#include "support/qtprinters.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QVariant value(const ScreenList &list, int row, const char *role)
{
    return list.index(row).data(list.roleNames().key(role, -1));
}

QStringList texts(const ScreenList &list, const char *role)
{
    QStringList texts;
    for (int row = 0; row < list.rowCount(); ++row)
        texts.append(value(list, row, role).toString());
    return texts;
}

} // namespace

TEST(ScreenList, HasARowForEachScreenInTheOrderOfTheDial)
{
    const ScreenList list;
    QList<Screen> screens;
    for (int row = 0; row < list.rowCount(); ++row)
        screens.append(value(list, row, "screen").value<Screen>());
    EXPECT_EQ(screens,
        (QList<Screen>{ Screen::Home, Screen::Course, Screen::Exposure, Screen::Lens,
            Screen::History, Screen::Gear, Screen::Workflow, Screen::Videos, Screen::Notes }));
}

TEST(ScreenList, CallsTheScreensByTheirTitles)
{
    EXPECT_EQ(texts(ScreenList(), "title"),
        (QStringList{ u"Campus"_s, u"Course"_s, u"Exposure Lab"_s, u"Lens Lab"_s, u"History"_s,
            u"Gear Encyclopedia"_s, u"Workflows & Software"_s, u"Video Library"_s,
            u"My Notes & Progress"_s }));
}

TEST(ScreenList, GivesEachScreenTheDigitOfItsPlace)
{
    EXPECT_EQ(texts(ScreenList(), "shortcut"),
        (QStringList{ u"Ctrl+1"_s, u"Ctrl+2"_s, u"Ctrl+3"_s, u"Ctrl+4"_s, u"Ctrl+5"_s, u"Ctrl+6"_s,
            u"Ctrl+7"_s, u"Ctrl+8"_s, u"Ctrl+9"_s }));
}

TEST(ScreenList, HasNothingForARoleThatItDoesNotKnow)
{
    const ScreenList list;
    EXPECT_FALSE(list.index(0).data(Qt::DisplayRole).isValid());
}

TEST(ScreenList, IsAFlatList)
{
    const ScreenList list;
    EXPECT_EQ(list.rowCount(list.index(0)), 0);
}
