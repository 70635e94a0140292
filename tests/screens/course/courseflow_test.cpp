#include "screens/course/courseflow.h"

#include "content/contentlibrary.h"
#include "kit/printing.h"
#include "screens/coursetesting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using CourseTesting::Course;
using CourseTesting::World;

namespace {

using Kind = CoursePane::Kind;

CoursePane paneOf(const CourseSelection &selection)
{
    return coursePane(selection, ContentLibrary::shared());
}

void expectIntroduction(const CoursePane &pane, const QString &moduleID)
{
    EXPECT_EQ(pane.kind, Kind::ModuleIntro);
    EXPECT_EQ(pane.lesson, nullptr);
    EXPECT_EQ(pane.quizModuleID, QString());
    ASSERT_NE(pane.module, nullptr);
    EXPECT_EQ(pane.module->id, moduleID);
}

void expectLesson(const CoursePane &pane, const QString &lessonID)
{
    EXPECT_EQ(pane.kind, Kind::Lesson);
    EXPECT_EQ(pane.quizModuleID, QString());
    ASSERT_NE(pane.lesson, nullptr);
    EXPECT_EQ(pane.lesson->id, lessonID);
}

QString idOf(const Lesson *lesson)
{
    return lesson ? lesson->id : u"none"_s;
}

class CourseFlow : public ::testing::Test
{
    World m_world;
};

} // namespace

TEST_F(CourseFlow, ShowsTheFirstModuleIfNothingIsChosen)
{
    expectIntroduction(paneOf({}), u"light"_s);
}

TEST_F(CourseFlow, ShowsTheChosenModule)
{
    expectIntroduction(paneOf({ .moduleID = u"time"_s }), u"time"_s);
}

TEST_F(CourseFlow, ShowsALessonBeforeAModule)
{
    expectLesson(paneOf({ .lessonID = u"l2"_s }), u"l2"_s);
    expectLesson(paneOf({ .moduleID = u"time"_s, .lessonID = u"l2"_s }), u"l2"_s);
    expectLesson(paneOf({ .moduleID = u"no-such-module"_s, .lessonID = u"l2"_s }), u"l2"_s);
}

TEST_F(CourseFlow, ShowsALessonWhoseModuleIsGone)
{
    expectLesson(paneOf({ .lessonID = u"stray"_s }), u"stray"_s);
}

TEST_F(CourseFlow, ShowsAQuizBeforeEverything)
{
    const CourseSelection selections[] = {
        { .quizModuleID = u"light"_s },
        { .lessonID = u"l2"_s, .quizModuleID = u"light"_s },
        { .moduleID = u"time"_s, .lessonID = u"l2"_s, .quizModuleID = u"light"_s },
        { .moduleID = u"gone"_s, .lessonID = u"gone"_s, .quizModuleID = u"light"_s },
    };
    for (const CourseSelection &selection : selections) {
        const CoursePane pane = paneOf(selection);
        EXPECT_EQ(pane.kind, Kind::Quiz);
        EXPECT_EQ(pane.quizModuleID, u"light"_s);
    }
}

TEST_F(CourseFlow, DoesNotLookUpTheModuleOfAQuiz)
{
    for (const QString &id : { u"no-such-module"_s, u""_s }) {
        const CoursePane pane = paneOf({ .lessonID = u"l1"_s, .quizModuleID = id });
        EXPECT_EQ(pane.kind, Kind::Quiz);
        EXPECT_EQ(pane.quizModuleID, id);
    }
}

TEST_F(CourseFlow, FallsThroughALessonThatIsGone)
{
    expectIntroduction(
        paneOf({ .moduleID = u"time"_s, .lessonID = u"no-such-lesson"_s }), u"time"_s);
    expectIntroduction(paneOf({ .moduleID = u"time"_s, .lessonID = u""_s }), u"time"_s);
    expectIntroduction(paneOf({ .lessonID = u"no-such-lesson"_s }), u"light"_s);
}

TEST_F(CourseFlow, FallsThroughAModuleThatIsGone)
{
    expectIntroduction(paneOf({ .moduleID = u"no-such-module"_s }), u"light"_s);
    expectIntroduction(
        paneOf({ .moduleID = u"no-such-module"_s, .lessonID = u"no-such-lesson"_s }), u"light"_s);
    // Ids are compared as they stand.
    expectIntroduction(paneOf({ .moduleID = u"Time"_s }), u"light"_s);
}

TEST_F(CourseFlow, PointsIntoTheLibrary)
{
    const ContentLibrary &library = ContentLibrary::shared();
    EXPECT_EQ(paneOf({}).module, &library.modules().first());
    EXPECT_EQ(paneOf({ .lessonID = u"l2"_s }).lesson, &library.lessons().at(1));
}

TEST(CourseFlowWithoutLessons, ShowsTheModuleThatThereIs)
{
    const World world(Course::Bare);
    expectIntroduction(paneOf({ .lessonID = u"l1"_s }), u"alone"_s);
}

TEST(CourseFlowWithoutModules, ShowsAnIntroductionOfNothing)
{
    const World world(Course::Empty);
    for (const CourseSelection &selection :
        { CourseSelection{}, CourseSelection{ .moduleID = u"m"_s, .lessonID = u"l"_s } }) {
        const CoursePane pane = paneOf(selection);
        EXPECT_EQ(pane.kind, Kind::ModuleIntro);
        EXPECT_EQ(pane.module, nullptr);
        EXPECT_EQ(pane.lesson, nullptr);
    }
    EXPECT_EQ(paneOf({ .quizModuleID = u"m"_s }).kind, Kind::Quiz);
}

TEST_F(CourseFlow, HasNothingBeforeTheFirstLesson)
{
    const LessonNeighbours neighbours = lessonNeighbours(u"l1"_s, ContentLibrary::shared());
    EXPECT_EQ(idOf(neighbours.previous), u"none"_s);
    EXPECT_EQ(idOf(neighbours.next), u"l2"_s);
}

TEST_F(CourseFlow, HasNothingBehindTheLastLesson)
{
    const LessonNeighbours neighbours = lessonNeighbours(u"stray"_s, ContentLibrary::shared());
    EXPECT_EQ(idOf(neighbours.previous), u"l3"_s);
    EXPECT_EQ(idOf(neighbours.next), u"none"_s);
}

TEST_F(CourseFlow, GoesOnAcrossModules)
{
    const ContentLibrary &library = ContentLibrary::shared();
    EXPECT_EQ(idOf(lessonNeighbours(u"l2"_s, library).previous), u"l1"_s);
    EXPECT_EQ(idOf(lessonNeighbours(u"l2"_s, library).next), u"l3"_s);
    EXPECT_EQ(idOf(lessonNeighbours(u"l3"_s, library).previous), u"l2"_s);
    EXPECT_EQ(idOf(lessonNeighbours(u"l3"_s, library).next), u"stray"_s);
}

TEST_F(CourseFlow, TakesALessonThatIsNotInTheCourseForTheFirst)
{
    for (const QString &id : { u"no-such-lesson"_s, u""_s, u"L2"_s }) {
        const LessonNeighbours neighbours = lessonNeighbours(id, ContentLibrary::shared());
        EXPECT_EQ(idOf(neighbours.previous), u"none"_s);
        EXPECT_EQ(idOf(neighbours.next), u"l2"_s);
    }
}

TEST(CourseFlowWithoutLessons, HasNothingBeforeOrBehindAnything)
{
    const World world(Course::Bare);
    const LessonNeighbours neighbours = lessonNeighbours(u"l1"_s, ContentLibrary::shared());
    EXPECT_EQ(neighbours.previous, nullptr);
    EXPECT_EQ(neighbours.next, nullptr);
}
