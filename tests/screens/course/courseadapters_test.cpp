#include "screens/campus/homeoverview.h"
#include "screens/course/private/courseoutline.h"
#include "screens/course/private/coursereading.h"
#include "screens/course/private/lessonlist.h"
#include "screens/course/private/lessonreading.h"
#include "screens/course/private/modulereading.h"

#include "kit/printing.h"
#include "screens/coursetesting.h"
#include "shell/appmodel.h"

#include <QAbstractItemModelTester>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;
using CourseTesting::Course;
using CourseTesting::lessonIDs;
using CourseTesting::World;

namespace {

AppModel &model()
{
    return AppModel::shared();
}

UserStore &store()
{
    return *UserStore::shared();
}

void finish(const QStringList &lessons)
{
    for (const QString &id : lessons)
        store().setComplete(id, true);
}

// A row's value under the name by which QML knows the role.
QVariant value(const QAbstractListModel &list, int row, const char *role)
{
    const int key = list.roleNames().key(role, -1);
    EXPECT_NE(key, -1) << role;
    return list.data(list.index(row), key);
}

QStringList column(const QAbstractListModel &list, const char *role)
{
    QStringList texts;
    for (int row = 0; row < list.rowCount(); ++row)
        texts.append(value(list, row, role).toString());
    return texts;
}

// What a list has told its view: how often the rows were replaced, and which values changed.
class Told
{
public:
    explicit Told(const QAbstractListModel &list)
    {
        QObject::connect(&list, &QAbstractListModel::modelReset, &m_context, [this] { ++resets; });
        QObject::connect(&list, &QAbstractListModel::dataChanged, &m_context,
            [this, &list](const QModelIndex &from, const QModelIndex &to, const QList<int> &keys) {
                coversAllRows = from.row() == 0 && to.row() == list.rowCount() - 1;
                for (const int key : keys)
                    roles.append(QString::fromLatin1(list.roleNames().value(key)));
            });
    }
    int resets = 0;
    bool coversAllRows = false;
    QStringList roles;

private:
    QObject m_context;
};

// How often a signal has come.
template <typename Object>
class Count
{
public:
    Count(const Object &object, void (Object::*signal)())
    {
        QObject::connect(&object, signal, &m_context, [this] { ++times; });
    }
    int times = 0;

private:
    QObject m_context;
};

class WithCourse : public ::testing::Test
{
protected:
    World world;
};

using HomeOverviewTest = WithCourse;
using CourseOutlineTest = WithCourse;
using LessonListTest = WithCourse;
using CourseReadingTest = WithCourse;
using ModuleReadingTest = WithCourse;
using LessonReadingTest = WithCourse;

} // namespace

TEST_F(HomeOverviewTest, HasARowForEachModuleInTheOrderOfTheCourse)
{
    const HomeOverview overview;
    EXPECT_EQ(column(overview, "moduleID"), QStringList({ u"light"_s, u"time"_s, u"later"_s }));
    EXPECT_EQ(column(overview, "title"),
        QStringList({ u"Light and the camera"_s, u"Time"_s, u"Chapters to come"_s }));
    EXPECT_EQ(column(overview, "level"), QStringList({ u"Beginner"_s, u"Advanced"_s, u""_s }));
    EXPECT_EQ(column(overview, "summary"),
        QStringList({ u"What happens between the scene and the file."_s,
            u"How long the shutter stays open."_s, u""_s }));
}

TEST_F(HomeOverviewTest, CountsLessonsPerModuleAndOverall)
{
    const HomeOverview overview;
    // The stray lesson counts for the course and for no module.
    EXPECT_EQ(column(overview, "lessonsIn"), QStringList({ u"2"_s, u"1"_s, u"0"_s }));
    EXPECT_EQ(overview.total(), 4);
}

TEST_F(HomeOverviewTest, OfAFreshUserBeginsWithLessonOne)
{
    const HomeOverview overview;
    EXPECT_EQ(overview.done(), 0);
    EXPECT_EQ(column(overview, "doneIn"), QStringList({ u"0"_s, u"0"_s, u"0"_s }));
    EXPECT_EQ(overview.continueTitle(), u"Start lesson 1"_s);
}

TEST_F(HomeOverviewTest, ContinuesWithTheFirstUnfinishedLesson)
{
    finish({ u"l1"_s, u"l3"_s });
    const HomeOverview overview;
    EXPECT_EQ(overview.done(), 2);
    EXPECT_EQ(column(overview, "doneIn"), QStringList({ u"1"_s, u"1"_s, u"0"_s }));
    EXPECT_EQ(overview.continueTitle(), u"Continue: A lens in the hole"_s);
}

TEST_F(HomeOverviewTest, ContinuesWithTheFirstLessonWhenAllAreFinished)
{
    finish(lessonIDs());
    const HomeOverview overview;
    EXPECT_EQ(overview.done(), 4);
    EXPECT_EQ(overview.continueTitle(), u"Continue: A hole in the dark"_s);
}

TEST_F(HomeOverviewTest, CountsFinishedLessonsThatHaveLeftTheCourse)
{
    finish({ u"l1"_s, u"an-old-lesson"_s });
    const HomeOverview overview;
    EXPECT_EQ(overview.done(), 2);
    EXPECT_EQ(overview.total(), 4);
    EXPECT_EQ(column(overview, "doneIn"), QStringList({ u"1"_s, u"0"_s, u"0"_s }));
}

TEST_F(HomeOverviewTest, ContinuesAndDoesNotStartIfOnlyAnOldLessonIsFinished)
{
    finish({ u"an-old-lesson"_s });
    EXPECT_EQ(HomeOverview().continueTitle(), u"Continue: A hole in the dark"_s);
}

TEST_F(HomeOverviewTest, FollowsTheStore)
{
    const HomeOverview overview;
    Told told(overview);
    const Count progress(overview, &HomeOverview::progressChanged);
    store().setComplete(u"l1"_s, true);
    EXPECT_EQ(overview.done(), 1);
    EXPECT_EQ(value(overview, 0, "doneIn").toInt(), 1);
    EXPECT_EQ(overview.continueTitle(), u"Continue: A lens in the hole"_s);
    EXPECT_EQ(told.roles, QStringList(u"doneIn"_s));
    EXPECT_TRUE(told.coversAllRows);
    EXPECT_EQ(progress.times, 1);

    store().setComplete(u"l1"_s, false);
    EXPECT_EQ(overview.done(), 0);
    EXPECT_EQ(overview.continueTitle(), u"Start lesson 1"_s);
}

TEST_F(HomeOverviewTest, IsAProperList)
{
    HomeOverview overview;
    const QAbstractItemModelTester tester(
        &overview, QAbstractItemModelTester::FailureReportingMode::Fatal);
    finish({ u"l1"_s });
    EXPECT_EQ(overview.rowCount(overview.index(0)), 0);
    EXPECT_FALSE(overview.data(overview.index(3), Qt::UserRole).isValid());
    EXPECT_FALSE(overview.data(overview.index(0), Qt::DisplayRole).isValid());
}

TEST(HomeOverviewWithoutLessons, HasNothingToContinueWith)
{
    const World world(Course::Bare);
    const HomeOverview overview;
    EXPECT_EQ(overview.total(), 0);
    EXPECT_EQ(overview.done(), 0);
    EXPECT_EQ(overview.continueTitle(), QString());
    EXPECT_EQ(column(overview, "lessonsIn"), QStringList(u"0"_s));
    EXPECT_EQ(column(overview, "doneIn"), QStringList(u"0"_s));
}

TEST(HomeOverviewWithoutACourse, HasNoRows)
{
    const World world(Course::Empty);
    HomeOverview overview;
    const Told told(overview);
    EXPECT_EQ(overview.rowCount(), 0);
    EXPECT_EQ(overview.continueTitle(), QString());
    // A change of the store finds no row to change.
    store().setComplete(u"an-old-lesson"_s, true);
    EXPECT_EQ(told.roles, QStringList());
    EXPECT_EQ(overview.done(), 1);
}

TEST(HomeOverviewWithoutAStore, ShowsNothingFinished)
{
    const World world(Course::Small, World::Store::None);
    const HomeOverview overview;
    EXPECT_EQ(overview.done(), 0);
    EXPECT_EQ(column(overview, "doneIn"), QStringList({ u"0"_s, u"0"_s, u"0"_s }));
    EXPECT_EQ(overview.continueTitle(), u"Start lesson 1"_s);
}

TEST_F(CourseOutlineTest, HasARowForEachModule)
{
    const CourseOutline outline;
    EXPECT_EQ(column(outline, "moduleID"), QStringList({ u"light"_s, u"time"_s, u"later"_s }));
    EXPECT_EQ(column(outline, "title"),
        QStringList({ u"Light and the camera"_s, u"Time"_s, u"Chapters to come"_s }));
    EXPECT_EQ(column(outline, "open"), QStringList({ u"false"_s, u"false"_s, u"false"_s }));
    EXPECT_EQ(column(outline, "quizOpen"), QStringList({ u"false"_s, u"false"_s, u"false"_s }));
}

TEST_F(CourseOutlineTest, OpensTheModuleThatIsPressedAndClosesTheOther)
{
    CourseOutline outline;
    Told told(outline);
    outline.toggleModule(u"light"_s);
    EXPECT_EQ(model().moduleID(), u"light"_s);
    EXPECT_EQ(column(outline, "open"), QStringList({ u"true"_s, u"false"_s, u"false"_s }));
    outline.toggleModule(u"time"_s);
    EXPECT_EQ(model().moduleID(), u"time"_s);
    EXPECT_EQ(column(outline, "open"), QStringList({ u"false"_s, u"true"_s, u"false"_s }));
    EXPECT_EQ(told.roles, QStringList({ u"open"_s, u"open"_s }));
    EXPECT_TRUE(told.coversAllRows);
}

TEST_F(CourseOutlineTest, ClosesTheOpenModule)
{
    CourseOutline outline;
    outline.toggleModule(u"light"_s);
    outline.toggleModule(u"light"_s);
    EXPECT_EQ(model().moduleID(), std::nullopt);
    EXPECT_EQ(column(outline, "open"), QStringList({ u"false"_s, u"false"_s, u"false"_s }));
}

TEST_F(CourseOutlineTest, LeavesLessonAndQuizAloneWhenAModuleIsPressed)
{
    CourseOutline outline;
    model().setModuleID(u"light"_s);
    model().setLessonID(u"l1"_s);
    outline.toggleModule(u"light"_s);
    EXPECT_EQ(model().lessonID(), u"l1"_s);
    model().setQuizModuleID(u"light"_s);
    outline.toggleModule(u"time"_s);
    EXPECT_EQ(model().lessonID(), u"l1"_s);
    EXPECT_EQ(model().quizModuleID(), u"light"_s);
    EXPECT_EQ(model().screen(), Screen::Home);
}

TEST_F(CourseOutlineTest, ShowsALessonInPlaceOfAQuiz)
{
    CourseOutline outline;
    model().setModuleID(u"time"_s);
    model().setQuizModuleID(u"time"_s);
    outline.showLesson(u"l3"_s);
    EXPECT_EQ(model().lessonID(), u"l3"_s);
    EXPECT_EQ(model().quizModuleID(), std::nullopt);
    EXPECT_EQ(model().moduleID(), u"time"_s);
}

TEST_F(CourseOutlineTest, ShowsAQuizInPlaceOfALesson)
{
    CourseOutline outline;
    Told told(outline);
    model().setModuleID(u"light"_s);
    model().setLessonID(u"l1"_s);
    outline.showQuiz(u"light"_s);
    EXPECT_EQ(model().quizModuleID(), u"light"_s);
    EXPECT_EQ(model().lessonID(), std::nullopt);
    EXPECT_EQ(model().moduleID(), u"light"_s);
    EXPECT_EQ(column(outline, "quizOpen"), QStringList({ u"true"_s, u"false"_s, u"false"_s }));
    EXPECT_TRUE(told.roles.contains(u"quizOpen"_s));
}

TEST_F(CourseOutlineTest, IsAProperList)
{
    CourseOutline outline;
    const QAbstractItemModelTester tester(
        &outline, QAbstractItemModelTester::FailureReportingMode::Fatal);
    outline.toggleModule(u"light"_s);
    EXPECT_EQ(outline.rowCount(outline.index(0)), 0);
    EXPECT_FALSE(outline.data(outline.index(3), Qt::UserRole).isValid());
}

TEST(CourseOutlineWithoutACourse, HasNoRows)
{
    const World world(Course::Empty);
    CourseOutline outline;
    const Told told(outline);
    model().setModuleID(u"anything"_s);
    EXPECT_EQ(outline.rowCount(), 0);
    EXPECT_EQ(told.roles, QStringList());
}

TEST_F(LessonListTest, IsEmptyWithoutAModule)
{
    const LessonList list;
    EXPECT_EQ(list.rowCount(), 0);
    EXPECT_EQ(list.moduleID(), QString());
}

TEST_F(LessonListTest, HasTheLessonsOfItsModule)
{
    LessonList list;
    list.setModuleID(u"light"_s);
    EXPECT_EQ(column(list, "lessonID"), QStringList({ u"l1"_s, u"l2"_s }));
    EXPECT_EQ(column(list, "number"), QStringList({ u"1"_s, u"2"_s }));
    EXPECT_EQ(
        column(list, "title"), QStringList({ u"A hole in the dark"_s, u"A lens in the hole"_s }));
    EXPECT_EQ(column(list, "minutes"), QStringList({ u"7"_s, u"5"_s }));
    EXPECT_EQ(column(list, "finished"), QStringList({ u"false"_s, u"false"_s }));
    EXPECT_EQ(column(list, "current"), QStringList({ u"false"_s, u"false"_s }));
}

TEST_F(LessonListTest, CountsFromOneInEachModule)
{
    LessonList list;
    list.setModuleID(u"time"_s);
    EXPECT_EQ(column(list, "lessonID"), QStringList(u"l3"_s));
    EXPECT_EQ(column(list, "number"), QStringList(u"1"_s));
}

TEST_F(LessonListTest, IsEmptyForAModuleWithoutLessonsAndForNone)
{
    LessonList list;
    for (const QString &id : { u"later"_s, u"no-such-module"_s, u""_s }) {
        list.setModuleID(id);
        EXPECT_EQ(list.rowCount(), 0) << qPrintable(id);
    }
}

TEST_F(LessonListTest, ReplacesItsRowsOnlyForAnotherModule)
{
    LessonList list;
    Told told(list);
    const Count changes(list, &LessonList::moduleIDChanged);
    list.setModuleID(u"light"_s);
    list.setModuleID(u"light"_s);
    EXPECT_EQ(told.resets, 1);
    EXPECT_EQ(changes.times, 1);
    list.setModuleID(u"time"_s);
    EXPECT_EQ(told.resets, 2);
    EXPECT_EQ(changes.times, 2);
}

TEST_F(LessonListTest, ShowsWhatIsFinished)
{
    finish({ u"l2"_s });
    LessonList list;
    list.setModuleID(u"light"_s);
    EXPECT_EQ(column(list, "finished"), QStringList({ u"false"_s, u"true"_s }));
}

TEST_F(LessonListTest, FollowsTheStore)
{
    LessonList list;
    list.setModuleID(u"light"_s);
    Told told(list);
    store().setComplete(u"l1"_s, true);
    EXPECT_EQ(column(list, "finished"), QStringList({ u"true"_s, u"false"_s }));
    EXPECT_EQ(told.roles, QStringList(u"finished"_s));
    EXPECT_TRUE(told.coversAllRows);
    store().setComplete(u"l1"_s, false);
    EXPECT_EQ(column(list, "finished"), QStringList({ u"false"_s, u"false"_s }));
    EXPECT_EQ(told.resets, 0);
}

TEST_F(LessonListTest, FollowsTheLessonThatIsRead)
{
    LessonList list;
    list.setModuleID(u"light"_s);
    Told told(list);
    model().setLessonID(u"l2"_s);
    EXPECT_EQ(column(list, "current"), QStringList({ u"false"_s, u"true"_s }));
    EXPECT_EQ(told.roles, QStringList(u"current"_s));
    model().setLessonID({});
    EXPECT_EQ(column(list, "current"), QStringList({ u"false"_s, u"false"_s }));
    model().setLessonID(u"l3"_s);
    EXPECT_EQ(column(list, "current"), QStringList({ u"false"_s, u"false"_s }));
}

TEST_F(LessonListTest, IsAProperList)
{
    LessonList list;
    const QAbstractItemModelTester tester(
        &list, QAbstractItemModelTester::FailureReportingMode::Fatal);
    list.setModuleID(u"light"_s);
    finish({ u"l1"_s });
    list.setModuleID(u"later"_s);
    list.setModuleID(u"time"_s);
    EXPECT_EQ(list.rowCount(list.index(0)), 0);
    EXPECT_FALSE(list.data(list.index(1), Qt::UserRole).isValid());
}

TEST(LessonListWithoutAStore, ShowsNothingFinished)
{
    const World world(Course::Small, World::Store::None);
    LessonList list;
    list.setModuleID(u"light"_s);
    EXPECT_EQ(column(list, "finished"), QStringList({ u"false"_s, u"false"_s }));
}

TEST_F(CourseReadingTest, IntroducesTheFirstModuleAtFirst)
{
    const CourseReading reading;
    EXPECT_EQ(reading.kind(), CourseReading::ModuleIntro);
    EXPECT_EQ(reading.moduleID(), u"light"_s);
    EXPECT_EQ(reading.lessonID(), QString());
}

TEST_F(CourseReadingTest, FollowsTheSelection)
{
    const CourseReading reading;
    const Count changes(reading, &CourseReading::changed);
    model().setModuleID(u"time"_s);
    EXPECT_EQ(reading.kind(), CourseReading::ModuleIntro);
    EXPECT_EQ(reading.moduleID(), u"time"_s);

    model().setLessonID(u"l1"_s);
    EXPECT_EQ(reading.kind(), CourseReading::Lesson);
    EXPECT_EQ(reading.lessonID(), u"l1"_s);

    model().setQuizModuleID(u"light"_s);
    EXPECT_EQ(reading.kind(), CourseReading::Quiz);
    EXPECT_EQ(reading.moduleID(), u"light"_s);
    EXPECT_EQ(reading.lessonID(), QString());

    model().setQuizModuleID({});
    EXPECT_EQ(reading.kind(), CourseReading::Lesson);
    EXPECT_EQ(reading.lessonID(), u"l1"_s);
    EXPECT_EQ(changes.times, 4);
}

TEST_F(CourseReadingTest, BeginsWithTheSelectionThatThereIs)
{
    model().openLesson(u"l3"_s);
    const CourseReading reading;
    EXPECT_EQ(reading.kind(), CourseReading::Lesson);
    EXPECT_EQ(reading.lessonID(), u"l3"_s);
}

TEST_F(CourseReadingTest, KeepsTheLessonWhenItsModuleIsClosed)
{
    model().openLesson(u"l1"_s);
    const CourseReading reading;
    const Count changes(reading, &CourseReading::changed);
    model().setModuleID({});
    EXPECT_EQ(reading.kind(), CourseReading::Lesson);
    EXPECT_EQ(reading.lessonID(), u"l1"_s);
    EXPECT_EQ(changes.times, 0);
}

TEST_F(CourseReadingTest, FallsThroughIdsThatAreGone)
{
    const CourseReading reading;
    model().setModuleID(u"time"_s);
    model().setLessonID(u"no-such-lesson"_s);
    EXPECT_EQ(reading.kind(), CourseReading::ModuleIntro);
    EXPECT_EQ(reading.moduleID(), u"time"_s);
    model().setModuleID(u"no-such-module"_s);
    EXPECT_EQ(reading.moduleID(), u"light"_s);
    model().setQuizModuleID(u"no-such-module"_s);
    EXPECT_EQ(reading.kind(), CourseReading::Quiz);
    EXPECT_EQ(reading.moduleID(), u"no-such-module"_s);
}

TEST_F(CourseReadingTest, SaysNothingIfItShowsTheSame)
{
    const CourseReading reading;
    const Count changes(reading, &CourseReading::changed);
    model().setModuleID(u"light"_s);
    model().setLessonID(u"no-such-lesson"_s);
    EXPECT_EQ(changes.times, 0);
}

TEST(CourseReadingWithoutACourse, IntroducesNoModule)
{
    const World world(Course::Empty);
    const CourseReading reading;
    EXPECT_EQ(reading.kind(), CourseReading::ModuleIntro);
    EXPECT_EQ(reading.moduleID(), QString());
}

TEST_F(ModuleReadingTest, TellsOfItsModule)
{
    ModuleReading introduction;
    introduction.setModuleID(u"light"_s);
    EXPECT_EQ(introduction.level(), u"Beginner"_s);
    EXPECT_EQ(introduction.title(), u"Light and the camera"_s);
    EXPECT_EQ(introduction.summary(), u"What happens between the scene and the file."_s);
    EXPECT_EQ(introduction.quizTitle(), u"Take the module quiz (2 questions)"_s);
}

TEST_F(ModuleReadingTest, OffersTheQuizWhateverTheNumberOfQuestions)
{
    ModuleReading introduction;
    introduction.setModuleID(u"time"_s);
    EXPECT_EQ(introduction.quizTitle(), u"Take the module quiz (0 questions)"_s);
}

TEST_F(ModuleReadingTest, HasAPlaceholderForNoModule)
{
    ModuleReading introduction;
    for (const QString &id : { u""_s, u"no-such-module"_s }) {
        introduction.setModuleID(id);
        EXPECT_EQ(introduction.level(), QString());
        EXPECT_EQ(introduction.title(), u"Course"_s);
        EXPECT_EQ(introduction.summary(), QString());
        EXPECT_EQ(introduction.quizTitle(), u"Take the module quiz (0 questions)"_s);
    }
}

TEST_F(ModuleReadingTest, SignalsAnotherModuleOnce)
{
    ModuleReading introduction;
    const Count changes(introduction, &ModuleReading::moduleIDChanged);
    introduction.setModuleID(u"light"_s);
    introduction.setModuleID(u"light"_s);
    EXPECT_EQ(changes.times, 1);
}

TEST_F(ModuleReadingTest, ShowsALessonWithoutOpeningItsModule)
{
    ModuleReading introduction;
    introduction.setModuleID(u"light"_s);
    introduction.showLesson(u"l2"_s);
    EXPECT_EQ(model().lessonID(), u"l2"_s);
    EXPECT_EQ(model().moduleID(), std::nullopt);
}

TEST_F(ModuleReadingTest, ShowsItsQuiz)
{
    ModuleReading introduction;
    introduction.setModuleID(u"time"_s);
    introduction.showQuiz();
    EXPECT_EQ(model().quizModuleID(), u"time"_s);
}

TEST_F(LessonReadingTest, TellsOfItsLesson)
{
    LessonReading lesson;
    lesson.setLessonID(u"l1"_s);
    EXPECT_EQ(lesson.title(), u"A hole in the dark"_s);
    EXPECT_EQ(lesson.moduleTitle(), u"LIGHT AND THE CAMERA"_s);
    EXPECT_EQ(lesson.minutes(), 7);
    EXPECT_TRUE(lesson.body().startsWith("## A hole sorts the light\n"_L1));
    EXPECT_TRUE(lesson.body().endsWith("\nIt stands on its head."_L1));
    EXPECT_FALSE(lesson.finished());
    EXPECT_FALSE(lesson.bookmarked());
}

TEST_F(LessonReadingTest, HasNoModuleTitleIfTheModuleIsGone)
{
    LessonReading lesson;
    lesson.setLessonID(u"stray"_s);
    EXPECT_EQ(lesson.title(), u"A lesson without a module"_s);
    EXPECT_EQ(lesson.moduleTitle(), QString());
    EXPECT_EQ(lesson.minutes(), 5);
}

TEST_F(LessonReadingTest, LeavesOutGearAndVideosThatAreGone)
{
    LessonReading lesson;
    lesson.setLessonID(u"l1"_s);
    EXPECT_EQ(column(*lesson.gear(), "itemID"), QStringList(u"tripod"_s));
    EXPECT_EQ(column(*lesson.gear(), "title"), QStringList(u"Tripod"_s));
    EXPECT_EQ(column(*lesson.videos(), "itemID"), QStringList(u"abcdefghijk"_s));
    EXPECT_EQ(column(*lesson.videos(), "title"), QStringList(u"Pinhole — The Bench"_s));
    EXPECT_EQ(lesson.gear()->count(), 1);
}

TEST_F(LessonReadingTest, HasNoGearIfAllOfItIsGone)
{
    LessonReading lesson;
    lesson.setLessonID(u"l1"_s);
    const Count<RowModel> changes(*lesson.gear(), &RowModel::countChanged);
    lesson.setLessonID(u"l2"_s);
    EXPECT_EQ(lesson.gear()->count(), 0);
    EXPECT_EQ(lesson.videos()->count(), 0);
    EXPECT_EQ(changes.times, 1);
}

TEST_F(LessonReadingTest, OfAnUnknownLessonIsBlank)
{
    LessonReading lesson;
    lesson.setLessonID(u"no-such-lesson"_s);
    EXPECT_EQ(lesson.title(), QString());
    EXPECT_EQ(lesson.moduleTitle(), QString());
    EXPECT_EQ(lesson.body(), QString());
    EXPECT_EQ(lesson.minutes(), 0);
    EXPECT_EQ(lesson.gear()->count(), 0);
    EXPECT_FALSE(lesson.finished());
    // It counts as the first of the course.
    EXPECT_FALSE(lesson.hasPrevious());
    EXPECT_TRUE(lesson.hasNext());
}

TEST_F(LessonReadingTest, KnowsWhatStandsBeforeAndBehind)
{
    LessonReading lesson;
    lesson.setLessonID(u"l1"_s);
    EXPECT_FALSE(lesson.hasPrevious());
    EXPECT_TRUE(lesson.hasNext());
    lesson.setLessonID(u"l2"_s);
    EXPECT_TRUE(lesson.hasPrevious());
    EXPECT_TRUE(lesson.hasNext());
    lesson.setLessonID(u"stray"_s);
    EXPECT_TRUE(lesson.hasPrevious());
    EXPECT_FALSE(lesson.hasNext());
}

TEST_F(LessonReadingTest, SignalsAnotherLessonOnce)
{
    LessonReading lesson;
    const Count changes(lesson, &LessonReading::lessonChanged);
    const Count marks(lesson, &LessonReading::marksChanged);
    lesson.setLessonID(u"l1"_s);
    lesson.setLessonID(u"l1"_s);
    EXPECT_EQ(changes.times, 1);
    EXPECT_EQ(marks.times, 1);
}

TEST_F(LessonReadingTest, MarksAsFinishedAndTakesTheMarkAway)
{
    LessonReading lesson;
    lesson.setLessonID(u"l1"_s);
    const Count marks(lesson, &LessonReading::marksChanged);
    lesson.toggleFinished();
    EXPECT_TRUE(lesson.finished());
    EXPECT_TRUE(store().isComplete(u"l1"_s));
    EXPECT_FALSE(store().isComplete(u"l2"_s));
    EXPECT_EQ(marks.times, 1);
    lesson.toggleFinished();
    EXPECT_FALSE(lesson.finished());
    EXPECT_FALSE(store().isComplete(u"l1"_s));
    EXPECT_EQ(marks.times, 2);
}

TEST_F(LessonReadingTest, SetsAndTakesAwayTheBookmark)
{
    LessonReading lesson;
    lesson.setLessonID(u"l1"_s);
    const Count marks(lesson, &LessonReading::marksChanged);
    lesson.toggleBookmark();
    EXPECT_TRUE(lesson.bookmarked());
    EXPECT_TRUE(store().isBookmarked(u"lesson"_s, u"l1"_s));
    EXPECT_EQ(marks.times, 1);
    lesson.toggleBookmark();
    EXPECT_FALSE(lesson.bookmarked());
    EXPECT_TRUE(store().bookmarks().isEmpty());
}

TEST_F(LessonReadingTest, SeesOnlyTheBookmarksOfLessons)
{
    store().setBookmark(u"gear"_s, u"l1"_s, true);
    LessonReading lesson;
    lesson.setLessonID(u"l1"_s);
    EXPECT_FALSE(lesson.bookmarked());
}

TEST_F(LessonReadingTest, FollowsMarksThatAreMadeElsewhere)
{
    LessonReading lesson;
    lesson.setLessonID(u"l1"_s);
    const Count marks(lesson, &LessonReading::marksChanged);
    store().setComplete(u"l1"_s, true);
    store().setBookmark(u"lesson"_s, u"l1"_s, true);
    EXPECT_TRUE(lesson.finished());
    EXPECT_TRUE(lesson.bookmarked());
    EXPECT_EQ(marks.times, 2);
}

TEST_F(LessonReadingTest, StartsANoteOnItsLesson)
{
    LessonReading lesson;
    lesson.setLessonID(u"l2"_s);
    lesson.addNote();
    ASSERT_TRUE(model().noteDraft().has_value());
    EXPECT_EQ(model().noteDraft()->targetType, u"lesson"_s);
    EXPECT_EQ(model().noteDraft()->targetID, u"l2"_s);
    EXPECT_EQ(model().noteDraft()->body, QString());
    EXPECT_TRUE(store().notes().isEmpty());
}

TEST_F(LessonReadingTest, GoesBackAcrossModulesWithoutAMark)
{
    model().openLesson(u"l3"_s);
    LessonReading lesson;
    lesson.setLessonID(u"l3"_s);
    lesson.goToPrevious();
    EXPECT_EQ(model().lessonID(), u"l2"_s);
    EXPECT_EQ(model().moduleID(), u"light"_s);
    EXPECT_TRUE(store().completedLessons().isEmpty());
}

TEST_F(LessonReadingTest, StaysAtTheFirstLesson)
{
    model().openLesson(u"l1"_s);
    LessonReading lesson;
    lesson.setLessonID(u"l1"_s);
    lesson.goToPrevious();
    EXPECT_EQ(model().lessonID(), u"l1"_s);
    EXPECT_EQ(model().moduleID(), u"light"_s);
}

TEST_F(LessonReadingTest, FinishesAndGoesOnAcrossModules)
{
    model().openLesson(u"l2"_s);
    LessonReading lesson;
    lesson.setLessonID(u"l2"_s);
    lesson.finishAndGoOn();
    EXPECT_EQ(model().lessonID(), u"l3"_s);
    EXPECT_EQ(model().moduleID(), u"time"_s);
    EXPECT_EQ(store().completedLessons(), QSet<QString>{ u"l2"_s });
}

TEST_F(LessonReadingTest, GoesOnFromAFinishedLessonWithoutWriting)
{
    finish({ u"l1"_s });
    model().openLesson(u"l1"_s);
    LessonReading lesson;
    lesson.setLessonID(u"l1"_s);
    const int revision = store().revision();
    lesson.finishAndGoOn();
    EXPECT_EQ(model().lessonID(), u"l2"_s);
    EXPECT_EQ(store().revision(), revision);
    EXPECT_TRUE(store().isComplete(u"l1"_s));
}

TEST_F(LessonReadingTest, GoesOnEvenIfTheMarkCanNotBeWritten)
{
    world.fillDisk();
    model().openLesson(u"l2"_s);
    LessonReading lesson;
    lesson.setLessonID(u"l2"_s);
    lesson.finishAndGoOn();
    EXPECT_EQ(model().lessonID(), u"l3"_s);
    EXPECT_EQ(model().moduleID(), u"time"_s);
    EXPECT_FALSE(store().isComplete(u"l2"_s));
    EXPECT_TRUE(model().messageText().contains("disk is full"_L1));
}

TEST_F(LessonReadingTest, TellsOfAMarkThatCanNotBeWritten)
{
    world.fillDisk();
    LessonReading lesson;
    lesson.setLessonID(u"l1"_s);
    const Count marks(lesson, &LessonReading::marksChanged);
    lesson.toggleFinished();
    EXPECT_FALSE(lesson.finished());
    EXPECT_EQ(marks.times, 0);
    EXPECT_TRUE(model().messageText().contains("disk is full"_L1));

    model().dismissMessage();
    lesson.toggleBookmark();
    EXPECT_FALSE(lesson.bookmarked());
    EXPECT_TRUE(model().messageText().contains("disk is full"_L1));
}

TEST(LessonReadingWithoutAStore, ShowsNoMarksAndWritesNone)
{
    const World world(Course::Small, World::Store::None);
    model().openLesson(u"l1"_s);
    LessonReading lesson;
    lesson.setLessonID(u"l1"_s);
    EXPECT_FALSE(lesson.finished());
    EXPECT_FALSE(lesson.bookmarked());
    lesson.toggleFinished();
    lesson.toggleBookmark();
    EXPECT_FALSE(lesson.finished());
    EXPECT_FALSE(lesson.bookmarked());
    EXPECT_FALSE(model().hasMessage());

    lesson.finishAndGoOn();
    EXPECT_EQ(model().lessonID(), u"l2"_s);
    EXPECT_FALSE(model().hasMessage());
}
