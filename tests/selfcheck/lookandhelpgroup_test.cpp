// The group of the self-test on themes, zoom and help.

#include "content/contentlibrary.h"
#include "kit/kit.h"
#include "kit/zoom.h"
#include "recording.h"
#include "selfcheck/selftest/groups.h"
#include "selfcheckworld.h"
#include "store/storetesting.h"
#include "support/qtprinters.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class LookAndHelpGroup : public ::testing::Test
{
protected:
    LookAndHelpGroup()
    {
        prepareSelfTestGroups();
        TestCourse::share(folder.path(), installedCourseFiles());
    }
    ~LookAndHelpGroup() override
    {
        prepareSelfTestGroups(); // whatever a test has told the kit
        ContentLibrary::setShared(nullptr);
    }

    StoreTesting::Folder folder;
    Recording recording;
};

} // namespace

TEST_F(LookAndHelpGroup, TellsTwentyNineChecksAndAllPass)
{
    HVSelfTest::lookAndHelpTests(recording.run);
    EXPECT_EQ(recording.failed(), QStringList());
    const QStringList told = recording.passed();
    ASSERT_EQ(told.size(), 29);
    EXPECT_EQ(told[0],
        u"Student's 6 themes plus Medium Format Black & Brass: Cobalt Gunmetal, Candy Red "
        "Titanium, Rose Gold, Lavender Pearl, Midnight Black, Brushed Gray, Medium Format Black & "
        "Brass"_s);
    EXPECT_EQ(told[2], u"Medium Format Black & Brass: text and buttons easy to read"_s);
    EXPECT_EQ(told[9],
        u"theme Medium Format Black & Brass: switches, and its glow color reads on the OLED screen "
        "(8.5:1)"_s);
    EXPECT_EQ(told[11],
        u"interface zoom 85%–200% (asked 300% → 200%, 50% → 85%), saved between launches"_s);
    EXPECT_EQ(told[13], u"21 help topics in the Help menu"_s);
    EXPECT_EQ(told[22], u"help covers My Notes & Progress"_s);
    EXPECT_EQ(told[26], u"Help links to https://corvane.example"_s);
}

TEST_F(LookAndHelpGroup, LeavesTheLastThemeAndTheLastZoom)
{
    HVSelfTest::lookAndHelpTests(recording.run);
    EXPECT_EQ(CRVNThemes::currentID(), u"mf-black-brass"_s);
    EXPECT_EQ(CNZoom::value(), 1.3);
}

TEST_F(LookAndHelpGroup, FailsWhereTheKitKnowsNothingOfTheApplication)
{
    CRVNKit::install({ .name = u"Other"_s });
    CRVNThemes::setDefaultID(u"rose-gold"_s);
    HVSelfTest::lookAndHelpTests(recording.run);
    EXPECT_EQ(recording.failed(),
        (QStringList{
            u"Medium Format Black & Brass is the default look"_s,
            u"2 help topics in the Help menu"_s,
            u"help covers Campus"_s,
            u"help covers Course"_s,
            u"help covers Exposure Lab"_s,
            u"help covers Lens Lab"_s,
            u"help covers History"_s,
            u"help covers Gear Encyclopedia"_s,
            u"help covers Workflows & Software"_s,
            u"help covers Video Library"_s,
            u"help covers My Notes & Progress"_s,
            u"Help → Credits lists every source"_s,
            u"credits name the video channels"_s,
            u"credits say no copyrighted photos are bundled"_s,
            u"Help links to https://corvane.example"_s,
            u"About credits Corvane with the link"_s,
            u"the app name shows CRVN"_s,
        }));
}

TEST_F(LookAndHelpGroup, FailsWhereTheCreditsLeaveOutASource)
{
    // given: help that was written for another course
    const QList<CRVNHelpTopic> topics = CRVNHelp::topics();
    CRVNHelp::setTopics([topics] { return topics; });
    TestCourse::Files files = installedCourseFiles();
    files[u"timeline.txt"_s] += "\n=== EVENT x\nyear: 1900\ntitle: X\nera: Pioneers\nsource: A new "
                                "source | https://example.com/new | 2026-01-01\n---\nText.\n";
    TestCourse::share(folder.path(), files);
    // when
    HVSelfTest::lookAndHelpTests(recording.run);
    // then
    EXPECT_EQ(recording.failed(), QStringList(u"Help → Credits lists every source"_s));
}
