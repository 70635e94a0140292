#include "shell/launch/request.h"

#include "content/contentlibrary.h"
#include "shell/appmodel.h"
#include "shell/screen.h"
#include "store/storetesting.h"
#include "store/userstore.h"
#include "support/environment.h"
#include "support/testcourse.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace StoreTesting;

namespace {

// A user on the notes' screen with the small course and nothing finished.
class LaunchRequest : public ::testing::Test
{
protected:
    LaunchRequest()
    {
        TestCourse::write(home.path(u"course"_s));
        ContentLibrary::setShared(nullptr);
        UserStore::setShared(nullptr);
        model.setScreen(Screen::Notes);
        model.setLessonID(std::nullopt);
    }
    ~LaunchRequest() override
    {
        ContentLibrary::setShared(nullptr);
        model.setScreen(Screen::Home);
        model.setLessonID(std::nullopt);
        model.setGlobalQuery({});
    }

    AppModel &model = AppModel::shared();
    Folder home;
    EnvironmentVariable content{ "HV_CONTENT", home.path(u"course"_s) };
};

} // namespace

TEST_F(LaunchRequest, ArgumentsThatAskForNothingGiveAnEmptyWord)
{
    EXPECT_EQ(Launch::requestIn({}), u""_s);
    EXPECT_EQ(Launch::requestIn({ u"--continued"_s, u"--screen=lens"_s, u"lens"_s }), u""_s);
}

TEST_F(LaunchRequest, IsFoundAmongOtherArguments)
{
    EXPECT_EQ(Launch::requestIn({ u"--unknown"_s, u"--continue"_s }), u"continue"_s);
    EXPECT_EQ(Launch::requestIn({ u"--screen"_s, u"exposure"_s, u"x"_s }), u"exposure"_s);
}

TEST_F(LaunchRequest, EveryScreenCanBeAskedFor)
{
    for (const ScreenInfo &screen : allScreens()) {
        EXPECT_EQ(Launch::requestIn({ u"--screen"_s, screen.rawValue }), screen.rawValue);
        EXPECT_TRUE(Launch::usageOfScreen().contains(screen.rawValue));
        Launch::fulfill(screen.rawValue);
        EXPECT_EQ(model.screen(), screen.screen);
    }
}

TEST_F(LaunchRequest, TheLastOneCounts)
{
    EXPECT_EQ(Launch::requestIn({ u"--screen"_s, u"lens"_s, u"--continue"_s }), u"continue"_s);
    EXPECT_EQ(Launch::requestIn({ u"--continue"_s, u"--screen"_s, u"lens"_s }), u"lens"_s);
}

TEST_F(LaunchRequest, NoScreenAndOneThatThereIsNotAreRefused)
{
    EXPECT_EQ(Launch::requestIn({ u"--screen"_s }), std::nullopt);
    EXPECT_EQ(Launch::requestIn({ u"--screen"_s, u"Lens"_s }), std::nullopt);
    EXPECT_EQ(Launch::requestIn({ u"--screen"_s, u""_s }), std::nullopt);
    EXPECT_EQ(Launch::requestIn({ u"--screen"_s, u"--continue"_s }), std::nullopt);
}

TEST_F(LaunchRequest, NoScreenIsCalledLikeTheCourse)
{
    EXPECT_EQ(screenNamed(u"continue"), std::nullopt);
}

TEST_F(LaunchRequest, GoesOnWithTheCourse)
{
    Launch::fulfill(u"continue");
    EXPECT_EQ(model.screen(), Screen::Course);
    EXPECT_EQ(model.lessonID(), u"a1-l1"_s);
}

TEST_F(LaunchRequest, ClosesTheResultsThatWouldCoverTheScreen)
{
    model.setGlobalQuery(u"lens"_s);
    Launch::fulfill(u"exposure");
    EXPECT_FALSE(model.showsResults());
}

TEST_F(LaunchRequest, AnyOtherWordChangesNothing)
{
    model.setGlobalQuery(u"lens"_s);
    for (const auto word : { u"", u"Lens", u"continue ", u"quit" })
        Launch::fulfill(word);
    EXPECT_EQ(model.screen(), Screen::Notes);
    EXPECT_TRUE(model.showsResults());
}
