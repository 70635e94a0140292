#include "screens/workflows/softwarekinds.h"

#include "content/contentlibrary.h"
#include "kit/printing.h"
#include "screens/coursetesting.h"
#include "screens/workflows/private/workflowlists.h"
#include "shell/appmodel.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using CourseTesting::Course;
using CourseTesting::World;

namespace {

QVariant value(const QAbstractListModel &list, int row, const char *role)
{
    return list.data(list.index(row), list.roleNames().key(role, -1));
}

} // namespace

TEST(SoftwareKinds, ListsEachKindOnceAsItAppears)
{
    const QList<Software> programs{ { .id = u"a"_s, .kind = u"Two"_s },
        { .id = u"b"_s, .kind = u"One"_s }, { .id = u"c"_s, .kind = u"Two"_s } };
    EXPECT_EQ(SoftwareKinds::kinds(programs), (QStringList{ u"Two"_s, u"One"_s }));
    const QList<Software> two = SoftwareKinds::ofKind(u"Two"_s, programs);
    ASSERT_EQ(two.size(), 2);
    EXPECT_EQ(two.at(1).id, u"c"_s);
    EXPECT_TRUE(SoftwareKinds::kinds({}).isEmpty());
}

TEST(SoftwareKinds, WordsAreTakenAsTheyStand)
{
    EXPECT_EQ(
        SoftwareKinds::makerLine({ .maker = u"A %2"_s, .platforms = u"B, C"_s }), u"A %2 · B, C"_s);
    EXPECT_EQ(SoftwareKinds::stageLine({ .order = 3, .stage = u"Scan %1"_s }), u"3. Scan %1"_s);
}

TEST(SoftwareKinds, ListsShowTheCourse)
{
    const World world(Course::Library);
    const WorkflowSteps steps;
    ASSERT_EQ(steps.count(), 2);
    EXPECT_EQ(value(steps, 1, "stage"), u"2. Develop"_s);
    EXPECT_EQ(value(steps, 1, "film"), u"In a tank."_s);

    const SoftwareKindList kinds;
    ASSERT_EQ(kinds.count(), 2);
    EXPECT_EQ(value(kinds, 0, "caption"), u"RAW EDITOR"_s);

    SoftwareList programs;
    EXPECT_EQ(programs.count(), 0);
    programs.setKind(u"Raw editor"_s);
    ASSERT_EQ(programs.count(), 2);
    EXPECT_EQ(value(programs, 0, "host"), u"darkroom.example.org"_s);
    EXPECT_EQ(value(programs, 1, "name"), u"Lightbox"_s);
    EXPECT_EQ(value(programs, 1, "host"), QString()); // a file never leaves the program
}

TEST(SoftwareKinds, MarkWhatASearchAskedFor)
{
    const World world(Course::Library);
    SoftwareList programs;
    programs.setKind(u"Raw editor"_s);
    EXPECT_EQ(value(programs, 0, "found"), false);
    EXPECT_EQ(value(programs, 1, "found"), false);
    AppModel::shared().setSoftwareID(u"lightbox"_s);
    EXPECT_EQ(value(programs, 0, "found"), false);
    EXPECT_EQ(value(programs, 1, "found"), true);
    AppModel::shared().setSoftwareID(u"gone"_s);
    EXPECT_EQ(value(programs, 1, "found"), false);
}
