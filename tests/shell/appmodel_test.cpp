#include "shell/appmodel.h"

#include "content/contentlibrary.h"
#include "shell/screenprinter.h"
#include "store/hverror.h"
#include "store/sqlitedb.h"
#include "store/storetesting.h"
#include "support/testcourse.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <tuple>
#include <utility>

using namespace Qt::StringLiterals;
using namespace StoreTesting;

namespace {

// Everything that a model says, to tell whether anything has changed.
auto fieldsOf(const AppModel &model)
{
    return std::tuple(model.screen(), model.moduleID(), model.lessonID(), model.quizModuleID(),
        model.gearID(), model.gearQuery(), model.eventID(), model.videoID(), model.softwareID(),
        model.globalQuery(), model.noteDraft(), model.draftIsUnsaved(), model.message(),
        model.sim());
}

// The signals of a model in the order in which it sends them.
class SignalLog
{
public:
    explicit SignalLog(const AppModel &model)
    {
        const QList<std::pair<QString, void (AppModel::*)()>> signalsByName = {
            { u"screen"_s, &AppModel::screenChanged },
            { u"moduleID"_s, &AppModel::moduleIDChanged },
            { u"lessonID"_s, &AppModel::lessonIDChanged },
            { u"quizModuleID"_s, &AppModel::quizModuleIDChanged },
            { u"gearID"_s, &AppModel::gearIDChanged },
            { u"gearQuery"_s, &AppModel::gearQueryChanged },
            { u"eventID"_s, &AppModel::eventIDChanged },
            { u"videoID"_s, &AppModel::videoIDChanged },
            { u"softwareID"_s, &AppModel::softwareIDChanged },
            { u"globalQuery"_s, &AppModel::globalQueryChanged },
            { u"searchOutcome"_s, &AppModel::searchOutcomeChanged },
            { u"noteDraft"_s, &AppModel::noteDraftChanged },
            { u"draftIsUnsaved"_s, &AppModel::draftIsUnsavedChanged },
            { u"message"_s, &AppModel::messageChanged },
            { u"sim"_s, &AppModel::simChanged },
        };
        for (const auto &[name, changed] : signalsByName) {
            QObject::connect(
                &model, changed, &m_receiver, [this, name = name] { m_names.append(name); });
        }
    }

    /// Those since the last call.
    [[nodiscard]] QStringList take() { return std::exchange(m_names, {}); }

private:
    QStringList m_names;
    QObject m_receiver; // last, so that no signal reaches a list that has gone
};

// A model over the small course and an empty progress file.
class AppModelTest : public ::testing::Test
{
protected:
    AppModelTest()
    {
        TestCourse::share(folder.path(u"course"_s));
        UserStore::setShared(std::make_unique<UserStore>(folder.url(u"Progress.sqlite"_s)));
    }
    ~AppModelTest() override
    {
        UserStore::setShared(nullptr);
        ContentLibrary::setShared(nullptr);
    }

    [[nodiscard]] static UserStore &store() { return *UserStore::shared(); }

    void useCourseWithoutLessons()
    {
        TestCourse::Files files = TestCourse::files();
        files[u"course.txt"_s] = "=== MODULE a1\ntitle: Light\n";
        TestCourse::share(folder.path(u"no lessons"_s), files);
    }

    static void finish(const QStringList &lessons)
    {
        for (const QString &lesson : lessons)
            store().setComplete(lesson, true);
    }

    // The id of the lesson to go on with.
    [[nodiscard]] std::optional<QString> nextLesson(const UserStore *progress) const
    {
        const Lesson *lesson = model.nextLesson(progress);
        return lesson ? std::optional(lesson->id) : std::nullopt;
    }

    // Another process has taken the table away from under the open store.
    void breakBookmarks()
    {
        SQLiteDB(folder.path(u"Progress.sqlite"_s)).exec(u"DROP TABLE bookmarks"_s);
    }

    Folder folder;
    AppModel model;
    SignalLog changed{ model };
};

} // namespace

TEST_F(AppModelTest, StartsOnTheCampusWithNothingOpen)
{
    EXPECT_EQ(model.screen(), Screen::Home);
    EXPECT_EQ(model.moduleID(), std::nullopt);
    EXPECT_EQ(model.lessonID(), std::nullopt);
    EXPECT_EQ(model.quizModuleID(), std::nullopt);
    EXPECT_EQ(model.gearID(), std::nullopt);
    EXPECT_EQ(model.gearQuery(), u""_s);
    EXPECT_EQ(model.eventID(), std::nullopt);
    EXPECT_EQ(model.videoID(), std::nullopt);
    EXPECT_EQ(model.softwareID(), std::nullopt);
    EXPECT_EQ(model.globalQuery(), u""_s);
    EXPECT_EQ(model.noteDraft(), std::nullopt);
    EXPECT_EQ(model.message(), std::nullopt);
    EXPECT_EQ(model.sim(), SimSettings());
}

TEST_F(AppModelTest, IsOneObjectForTheWholeProcess)
{
    EXPECT_EQ(&AppModel::shared(), &AppModel::shared());
    EXPECT_NE(&AppModel::shared(), &model);
}

TEST_F(AppModelTest, CallsTheScreenByItsNames)
{
    model.setScreen(Screen::Exposure);
    EXPECT_EQ(model.screenTitle(), u"Exposure Lab"_s);
    EXPECT_EQ(model.screenShortTitle(), u"EXPO"_s);
    EXPECT_EQ(model.screenSymbol(), u"camera.aperture"_s);
}

// Setting fields

TEST_F(AppModelTest, AnnouncesTheChangeOfEachFieldOnce)
{
    SimSettings darker;
    darker.iso = 100;

    model.setScreen(Screen::Lens);
    EXPECT_EQ(changed.take(), QStringList(u"screen"_s));
    model.setModuleID(u"a1"_s);
    EXPECT_EQ(changed.take(), QStringList(u"moduleID"_s));
    model.setLessonID(u"a1-l1"_s);
    EXPECT_EQ(changed.take(), QStringList(u"lessonID"_s));
    model.setQuizModuleID(u"a1"_s);
    EXPECT_EQ(changed.take(), QStringList(u"quizModuleID"_s));
    model.setGearID(u"tripod"_s);
    EXPECT_EQ(changed.take(), QStringList(u"gearID"_s));
    model.setGearQuery(u"legs"_s);
    EXPECT_EQ(changed.take(), QStringList(u"gearQuery"_s));
    model.setEventID(u"daguerre"_s);
    EXPECT_EQ(changed.take(), QStringList(u"eventID"_s));
    model.setVideoID(u"vid-light"_s);
    EXPECT_EQ(changed.take(), QStringList(u"videoID"_s));
    model.setSoftwareID(u"darkroom"_s);
    EXPECT_EQ(changed.take(), QStringList(u"softwareID"_s));
    model.setGlobalQuery(u"light"_s);
    EXPECT_EQ(changed.take(), QStringList(u"globalQuery"_s));
    model.setNoteDraft(Note{ .targetType = u"general"_s });
    EXPECT_EQ(changed.take(), QStringList(u"noteDraft"_s));
    model.setDraftIsUnsaved(true);
    EXPECT_EQ(changed.take(), QStringList(u"draftIsUnsaved"_s));
    model.setMessage(u"The disk is full."_s);
    EXPECT_EQ(changed.take(), QStringList(u"message"_s));
    model.setSim(darker);
    EXPECT_EQ(changed.take(), QStringList(u"sim"_s));

    EXPECT_EQ(fieldsOf(model),
        std::tuple(Screen::Lens, std::optional(u"a1"_s), std::optional(u"a1-l1"_s),
            std::optional(u"a1"_s), std::optional(u"tripod"_s), u"legs"_s,
            std::optional(u"daguerre"_s), std::optional(u"vid-light"_s),
            std::optional(u"darkroom"_s), u"light"_s,
            std::optional(Note{ .targetType = u"general"_s }), true,
            std::optional(u"The disk is full."_s), darker));
}

TEST_F(AppModelTest, AnnouncesNothingWhenAFieldIsSetToWhatItIs)
{
    const auto setAll = [this] {
        SimSettings darker;
        darker.iso = 100;
        model.setScreen(Screen::Lens);
        model.setModuleID(u"a1"_s);
        model.setLessonID(u"a1-l1"_s);
        model.setQuizModuleID(u"a1"_s);
        model.setGearID(u"tripod"_s);
        model.setGearQuery(u"legs"_s);
        model.setEventID(u"daguerre"_s);
        model.setVideoID(u"vid-light"_s);
        model.setSoftwareID(u"darkroom"_s);
        model.setGlobalQuery(u"light"_s);
        model.setNoteDraft(Note{ .targetType = u"general"_s });
        model.setMessage(u"The disk is full."_s);
        model.setSim(darker);
    };
    setAll();
    EXPECT_EQ(changed.take().size(), 13);
    setAll();
    EXPECT_EQ(changed.take(), QStringList());
}

TEST_F(AppModelTest, ShowsResultsWhileTheQueryHoldsMoreThanBlanks)
{
    EXPECT_FALSE(model.showsResults());
    model.setGlobalQuery(u"  \t "_s);
    EXPECT_FALSE(model.showsResults());
    model.setGlobalQuery(u" f "_s);
    EXPECT_TRUE(model.showsResults());
    model.setGlobalQuery(u""_s);
    EXPECT_FALSE(model.showsResults());
}

TEST_F(AppModelTest, KeepsWhatIsOpenWhileTheUserLooksElsewhere)
{
    // given
    SimSettings wide;
    wide.focal = 24;
    model.openLesson(u"a1-l2"_s);
    model.openGear(u"tripod"_s);
    model.setSim(wide);
    // when
    model.step(1);
    model.step(1);
    model.setScreen(Screen::Course);
    // then
    EXPECT_EQ(model.lessonID(), u"a1-l2"_s);
    EXPECT_EQ(model.gearID(), u"tripod"_s);
    EXPECT_EQ(model.sim(), wide);
}

// Opening a lesson

TEST_F(AppModelTest, OpensALessonOnTheCourseScreen)
{
    model.openLesson(u"a2-l1"_s);
    EXPECT_EQ(model.moduleID(), u"a2"_s);
    EXPECT_EQ(model.lessonID(), u"a2-l1"_s);
    EXPECT_EQ(model.quizModuleID(), std::nullopt);
    EXPECT_EQ(model.screen(), Screen::Course);
}

TEST_F(AppModelTest, SetsTheModuleBeforeTheLessonAndTheScreenLast)
{
    model.setQuizModuleID(u"a1"_s);
    static_cast<void>(changed.take());
    model.openLesson(u"a2-l1"_s);
    EXPECT_EQ(changed.take(),
        (QStringList{ u"moduleID"_s, u"lessonID"_s, u"quizModuleID"_s, u"screen"_s }));
}

TEST_F(AppModelTest, OpeningALessonClosesAnOpenQuiz)
{
    model.setModuleID(u"a1"_s);
    model.setQuizModuleID(u"a1"_s);
    model.setScreen(Screen::Course);
    model.openLesson(u"a1-l1"_s);
    EXPECT_EQ(model.quizModuleID(), std::nullopt);
}

TEST_F(AppModelTest, OpeningAnUnknownLessonChangesNoField)
{
    // given: something in every field that opening a lesson sets
    model.setScreen(Screen::History);
    model.setModuleID(u"a1"_s);
    model.setLessonID(u"a1-l1"_s);
    model.setQuizModuleID(u"a1"_s);
    model.setGlobalQuery(u"light"_s);
    const auto before = fieldsOf(model);
    static_cast<void>(changed.take());
    // when
    for (const QString &id : { u"a3-l1"_s, u""_s, u"A1-L1"_s, u"a1"_s, u"tripod"_s })
        model.openLesson(id);
    // then
    EXPECT_EQ(fieldsOf(model), before);
    EXPECT_EQ(changed.take(), QStringList());
}

TEST_F(AppModelTest, OpeningTheOpenLessonAnnouncesNothing)
{
    model.openLesson(u"a1-l1"_s);
    static_cast<void>(changed.take());
    model.openLesson(u"a1-l1"_s);
    EXPECT_EQ(changed.take(), QStringList());
}

TEST_F(AppModelTest, OpensAModuleAtItsIntroduction)
{
    model.openLesson(u"a1-l1"_s);
    model.setQuizModuleID(u"a1"_s);
    model.setScreen(Screen::Home);
    model.openModule(u"a2"_s);
    EXPECT_EQ(model.moduleID(), u"a2"_s);
    EXPECT_EQ(model.lessonID(), std::nullopt);
    EXPECT_EQ(model.quizModuleID(), std::nullopt);
    EXPECT_EQ(model.screen(), Screen::Course);
}

// Opening anything else: nobody asks the course, and an id that names nothing is no obstacle

TEST_F(AppModelTest, OpensAGearEntryOnItsScreen)
{
    model.openGear(u"tripod"_s);
    EXPECT_EQ(model.gearID(), u"tripod"_s);
    EXPECT_EQ(model.screen(), Screen::Gear);
    EXPECT_EQ(changed.take(), (QStringList{ u"gearID"_s, u"screen"_s }));
}

TEST_F(AppModelTest, OpensAVideoOnItsScreen)
{
    model.openVideo(u"vid-lens"_s);
    EXPECT_EQ(model.videoID(), u"vid-lens"_s);
    EXPECT_EQ(model.screen(), Screen::Videos);
    EXPECT_EQ(changed.take(), (QStringList{ u"videoID"_s, u"screen"_s }));
}

TEST_F(AppModelTest, OpensAnEventOnItsScreen)
{
    model.openEvent(u"daguerre"_s);
    EXPECT_EQ(model.eventID(), u"daguerre"_s);
    EXPECT_EQ(model.screen(), Screen::History);
    EXPECT_EQ(changed.take(), (QStringList{ u"eventID"_s, u"screen"_s }));
}

TEST_F(AppModelTest, OpensASoftwareEntryOnItsScreen)
{
    model.openSoftware(u"darkroom"_s);
    EXPECT_EQ(model.softwareID(), u"darkroom"_s);
    EXPECT_EQ(model.screen(), Screen::Workflow);
    EXPECT_EQ(changed.take(), (QStringList{ u"softwareID"_s, u"screen"_s }));
}

TEST_F(AppModelTest, OpensAnIdThatNamesNothing)
{
    model.openGear(u"gone"_s);
    EXPECT_EQ(model.gearID(), u"gone"_s);
    EXPECT_EQ(model.screen(), Screen::Gear);
}

TEST_F(AppModelTest, OpeningAGearEntryKeepsTheFilter)
{
    model.setGearQuery(u"legs"_s);
    model.openGear(u"tripod"_s);
    EXPECT_EQ(model.gearQuery(), u"legs"_s);
}

// Opening a search hit

TEST_F(AppModelTest, AHitOnALessonOpensItAndClosesTheResults)
{
    model.setGlobalQuery(u"depth"_s);
    model.openHit(u"lesson"_s, u"a2-l1"_s);
    EXPECT_EQ(model.moduleID(), u"a2"_s);
    EXPECT_EQ(model.lessonID(), u"a2-l1"_s);
    EXPECT_EQ(model.screen(), Screen::Course);
    EXPECT_EQ(model.globalQuery(), u""_s);
}

TEST_F(AppModelTest, AHitOnGearOpensItAndClosesTheResults)
{
    model.setGlobalQuery(u"tripod"_s);
    model.openHit(u"gear"_s, u"tripod"_s);
    EXPECT_EQ(model.gearID(), u"tripod"_s);
    EXPECT_EQ(model.screen(), Screen::Gear);
    EXPECT_EQ(model.globalQuery(), u""_s);
}

TEST_F(AppModelTest, AHitOnAVideoOpensItAndClosesTheResults)
{
    model.setGlobalQuery(u"lenses"_s);
    model.openHit(u"video"_s, u"vid-lens"_s);
    EXPECT_EQ(model.videoID(), u"vid-lens"_s);
    EXPECT_EQ(model.screen(), Screen::Videos);
    EXPECT_EQ(model.globalQuery(), u""_s);
}

TEST_F(AppModelTest, AHitOnHistoryOpensTheEventAndClosesTheResults)
{
    model.setGlobalQuery(u"silver"_s);
    model.openHit(u"history"_s, u"daguerre"_s);
    EXPECT_EQ(model.eventID(), u"daguerre"_s);
    EXPECT_EQ(model.screen(), Screen::History);
    EXPECT_EQ(model.globalQuery(), u""_s);
}

TEST_F(AppModelTest, AHitOnSoftwareOpensItAndClosesTheResults)
{
    model.setGlobalQuery(u"raw"_s);
    model.openHit(u"software"_s, u"darkroom"_s);
    EXPECT_EQ(model.softwareID(), u"darkroom"_s);
    EXPECT_EQ(model.screen(), Screen::Workflow);
    EXPECT_EQ(model.globalQuery(), u""_s);
}

TEST_F(AppModelTest, AHitOfAnUnknownKindOnlyClosesTheResults)
{
    model.openGear(u"tripod"_s);
    for (const QString &kind : { u"quiz"_s, u""_s, u"Lesson"_s, u"general"_s, u"workflow"_s }) {
        SCOPED_TRACE(qPrintable(kind));
        model.setGlobalQuery(u""_s);
        const auto before = fieldsOf(model);
        model.setGlobalQuery(u"light"_s);
        static_cast<void>(changed.take());
        model.openHit(kind, u"a1-l1"_s);
        EXPECT_EQ(fieldsOf(model), before);
        EXPECT_EQ(changed.take(), QStringList(u"globalQuery"_s));
    }
}

TEST_F(AppModelTest, AHitOnALessonThatHasGoneOnlyClosesTheResults)
{
    const auto before = fieldsOf(model);
    model.setGlobalQuery(u"light"_s);
    model.openHit(u"lesson"_s, u"a3-l1"_s);
    EXPECT_EQ(fieldsOf(model), before);
}

TEST_F(AppModelTest, TheResultsCloseAfterTheScreenUnderThemHasChanged)
{
    model.setGlobalQuery(u"tripod"_s);
    static_cast<void>(changed.take());
    model.openHit(u"gear"_s, u"tripod"_s);
    EXPECT_EQ(changed.take(), (QStringList{ u"gearID"_s, u"screen"_s, u"globalQuery"_s }));
}

// Opening the target of a note or bookmark

TEST_F(AppModelTest, ALessonTargetOpensTheLesson)
{
    model.setQuizModuleID(u"a1"_s);
    model.openTarget(u"lesson"_s, u"a1-l2"_s);
    EXPECT_EQ(model.moduleID(), u"a1"_s);
    EXPECT_EQ(model.lessonID(), u"a1-l2"_s);
    EXPECT_EQ(model.quizModuleID(), std::nullopt);
    EXPECT_EQ(model.screen(), Screen::Course);
}

TEST_F(AppModelTest, AGearTargetOpensTheEntry)
{
    model.openTarget(u"gear"_s, u"fast-prime"_s);
    EXPECT_EQ(model.gearID(), u"fast-prime"_s);
    EXPECT_EQ(model.screen(), Screen::Gear);
}

TEST_F(AppModelTest, AVideoTargetOpensTheVideo)
{
    model.openTarget(u"video"_s, u"vid-light"_s);
    EXPECT_EQ(model.videoID(), u"vid-light"_s);
    EXPECT_EQ(model.screen(), Screen::Videos);
}

TEST_F(AppModelTest, AHistoryTargetOpensTheEvent)
{
    model.openTarget(u"history"_s, u"obscura"_s);
    EXPECT_EQ(model.eventID(), u"obscura"_s);
    EXPECT_EQ(model.screen(), Screen::History);
}

TEST_F(AppModelTest, AGeneralTargetGoesToTheNotes)
{
    model.openTarget(u"general"_s, u"general"_s);
    EXPECT_EQ(model.screen(), Screen::Notes);
    EXPECT_EQ(changed.take(), QStringList(u"screen"_s));
}

TEST_F(AppModelTest, SoftwareIsNoTargetAndGoesToTheNotes)
{
    model.openTarget(u"software"_s, u"darkroom"_s);
    EXPECT_EQ(model.screen(), Screen::Notes);
    EXPECT_EQ(model.softwareID(), std::nullopt);
    EXPECT_EQ(changed.take(), QStringList(u"screen"_s));
}

TEST_F(AppModelTest, ATargetWhoseLessonHasGoneChangesNothing)
{
    model.setScreen(Screen::Notes);
    const auto before = fieldsOf(model);
    model.openTarget(u"lesson"_s, u"a3-l1"_s);
    EXPECT_EQ(fieldsOf(model), before);
}

TEST_F(AppModelTest, OpeningATargetKeepsTheQuery)
{
    for (const QString &type : { u"lesson"_s, u"gear"_s, u"video"_s, u"history"_s, u"general"_s }) {
        model.setGlobalQuery(u"light"_s);
        model.openTarget(type, u"a1-l1"_s);
        EXPECT_EQ(model.globalQuery(), u"light"_s) << qPrintable(type);
    }
}

// Turning the dial

TEST_F(AppModelTest, StepsThroughTheScreensInBothDirections)
{
    model.step(1);
    EXPECT_EQ(model.screen(), Screen::Course);
    model.step(1);
    EXPECT_EQ(model.screen(), Screen::Exposure);
    model.step(-1);
    EXPECT_EQ(model.screen(), Screen::Course);
}

TEST_F(AppModelTest, StepsFromTheLastScreenToTheFirstAndBack)
{
    model.setScreen(Screen::Notes);
    model.step(1);
    EXPECT_EQ(model.screen(), Screen::Home);
    model.step(-1);
    EXPECT_EQ(model.screen(), Screen::Notes);
}

TEST_F(AppModelTest, SteppingKeepsTheSearchResultsOpen)
{
    model.setGlobalQuery(u"light"_s);
    model.step(1);
    EXPECT_EQ(model.globalQuery(), u"light"_s);
}

// Going on with the course

TEST_F(AppModelTest, TheNextLessonIsTheFirstThatIsNotFinished)
{
    finish({ u"a1-l1"_s });
    EXPECT_EQ(nextLesson(&store()), u"a1-l2"_s);
}

TEST_F(AppModelTest, TheNextLessonMayLieBeforeFinishedOnes)
{
    finish({ u"a1-l1"_s, u"a2-l1"_s });
    EXPECT_EQ(nextLesson(&store()), u"a1-l2"_s);
}

TEST_F(AppModelTest, TheNextLessonMayBeInTheNextModule)
{
    finish({ u"a1-l1"_s, u"a1-l2"_s });
    EXPECT_EQ(nextLesson(&store()), u"a2-l1"_s);
}

TEST_F(AppModelTest, TheNextLessonIsTheFirstInAFreshProgressFile)
{
    EXPECT_EQ(nextLesson(&store()), u"a1-l1"_s);
}

TEST_F(AppModelTest, TheNextLessonIsTheFirstWhenAllAreFinished)
{
    finish({ u"a1-l1"_s, u"a1-l2"_s, u"a2-l1"_s });
    EXPECT_EQ(nextLesson(&store()), u"a1-l1"_s);
}

TEST_F(AppModelTest, TheNextLessonIsTheFirstWithoutAStore)
{
    finish({ u"a1-l1"_s });
    EXPECT_EQ(nextLesson(nullptr), u"a1-l1"_s);
}

TEST_F(AppModelTest, LessonsThatTheCourseHasNotDoNotCountAsFinished)
{
    finish({ u"gone-1"_s, u"gone-2"_s, u"gone-3"_s });
    EXPECT_EQ(nextLesson(&store()), u"a1-l1"_s);
}

TEST_F(AppModelTest, ThereIsNoNextLessonInACourseWithoutLessons)
{
    useCourseWithoutLessons();
    EXPECT_EQ(nextLesson(&store()), std::nullopt);
    EXPECT_EQ(nextLesson(nullptr), std::nullopt);
}

TEST_F(AppModelTest, ContinuesTheCourseWithTheNextLesson)
{
    finish({ u"a1-l1"_s });
    model.continueCourse();
    EXPECT_EQ(model.moduleID(), u"a1"_s);
    EXPECT_EQ(model.lessonID(), u"a1-l2"_s);
    EXPECT_EQ(model.screen(), Screen::Course);
}

TEST_F(AppModelTest, ContinuesAFinishedCourseWithTheFirstLesson)
{
    finish({ u"a1-l1"_s, u"a1-l2"_s, u"a2-l1"_s });
    model.continueCourse();
    EXPECT_EQ(model.lessonID(), u"a1-l1"_s);
    EXPECT_EQ(model.screen(), Screen::Course);
}

TEST_F(AppModelTest, ContinuesTheCourseWithoutAStore)
{
    UserStore::setShared(nullptr);
    model.continueCourse();
    EXPECT_EQ(model.lessonID(), u"a1-l1"_s);
    EXPECT_EQ(model.screen(), Screen::Course);
}

TEST_F(AppModelTest, ContinuingACourseWithoutLessonsChangesNothing)
{
    useCourseWithoutLessons();
    model.setScreen(Screen::Gear);
    const auto before = fieldsOf(model);
    model.continueCourse();
    EXPECT_EQ(fieldsOf(model), before);
}

// Writing for a screen

TEST_F(AppModelTest, RunsABodyOnceAndSaysNothingWhenItSucceeds)
{
    int runs = 0;
    model.run([&] { ++runs; });
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(model.message(), std::nullopt);
    EXPECT_EQ(changed.take(), QStringList());
}

TEST_F(AppModelTest, TurnsAFailureOfABodyIntoTheMessage)
{
    model.run([] { store().saveQuiz(u"a1"_s, 3, 2, QDateTime::currentDateTimeUtc()); });
    EXPECT_EQ(model.message(), u"A quiz score must be between 0 and the number of questions."_s);
    EXPECT_TRUE(model.hasMessage());
    EXPECT_EQ(model.messageText(), *model.message());
    EXPECT_EQ(changed.take(), QStringList(u"message"_s));
}

TEST_F(AppModelTest, ALaterFailureReplacesTheMessage)
{
    model.run([] { throw HVError(HVError::Kind::NotFound); });
    EXPECT_EQ(model.message(), u"That record no longer exists."_s);
    model.run([] { throw HVError(HVError::Kind::Invalid, u"A note can't be empty."_s); });
    EXPECT_EQ(model.message(), u"A note can't be empty."_s);
}

TEST_F(AppModelTest, ASuccessKeepsTheMessageOfAnEarlierFailure)
{
    model.run([] { throw HVError(HVError::Kind::NotFound); });
    model.run([] { store().setComplete(u"a1-l1"_s, true); });
    EXPECT_EQ(model.message(), u"That record no longer exists."_s);
}

TEST_F(AppModelTest, AMessageStaysUntilItIsDismissed)
{
    model.setMessage(u"The disk is full."_s);
    model.openGear(u"tripod"_s);
    model.step(1);
    EXPECT_EQ(model.message(), u"The disk is full."_s);
    model.dismissMessage();
    EXPECT_EQ(model.message(), std::nullopt);
    EXPECT_FALSE(model.hasMessage());
    EXPECT_EQ(model.messageText(), u""_s);
}

TEST_F(AppModelTest, AnEmptyMessageIsAMessage)
{
    model.setMessage(u""_s);
    EXPECT_TRUE(model.hasMessage());
    EXPECT_EQ(changed.take(), QStringList(u"message"_s));
}

// Bookmarks

TEST_F(AppModelTest, TogglesABookmarkOn)
{
    model.toggleBookmark(u"gear"_s, u"tripod"_s);
    EXPECT_TRUE(store().isBookmarked(u"gear"_s, u"tripod"_s));
    EXPECT_EQ(model.message(), std::nullopt);
}

TEST_F(AppModelTest, TogglesABookmarkOff)
{
    store().setBookmark(u"gear"_s, u"tripod"_s, true);
    model.toggleBookmark(u"gear"_s, u"tripod"_s);
    EXPECT_FALSE(store().isBookmarked(u"gear"_s, u"tripod"_s));
}

TEST_F(AppModelTest, TogglingABookmarkTwiceLeavesItAsItWas)
{
    store().setBookmark(u"lesson"_s, u"a1-l1"_s, true);
    for (const QString &id : { u"a1-l1"_s, u"a1-l2"_s }) {
        model.toggleBookmark(u"lesson"_s, id);
        model.toggleBookmark(u"lesson"_s, id);
    }
    EXPECT_TRUE(store().isBookmarked(u"lesson"_s, u"a1-l1"_s));
    EXPECT_FALSE(store().isBookmarked(u"lesson"_s, u"a1-l2"_s));
}

TEST_F(AppModelTest, TogglingABookmarkLeavesTheOthersAlone)
{
    store().setBookmark(u"video"_s, u"tripod"_s, true);
    store().setBookmark(u"gear"_s, u"fast-prime"_s, true);
    model.toggleBookmark(u"gear"_s, u"tripod"_s);
    EXPECT_TRUE(store().isBookmarked(u"video"_s, u"tripod"_s));
    EXPECT_TRUE(store().isBookmarked(u"gear"_s, u"fast-prime"_s));
}

TEST_F(AppModelTest, TogglingABookmarkWithoutAStoreDoesNothingSilently)
{
    UserStore::setShared(nullptr);
    const auto before = fieldsOf(model);
    model.toggleBookmark(u"gear"_s, u"tripod"_s);
    EXPECT_EQ(fieldsOf(model), before);
    EXPECT_EQ(changed.take(), QStringList());
}

TEST_F(AppModelTest, ABookmarkThatCanNotBeWrittenBecomesTheMessage)
{
    breakBookmarks();
    model.toggleBookmark(u"gear"_s, u"tripod"_s);
    EXPECT_EQ(model.message(), u"The database reported a problem: no such table: bookmarks"_s);
    EXPECT_EQ(store().revision(), 0);
}

TEST_F(AppModelTest, AFailedBookmarkReplacesAnEarlierMessage)
{
    breakBookmarks();
    model.setMessage(u"The disk is full."_s);
    model.toggleBookmark(u"gear"_s, u"tripod"_s);
    EXPECT_EQ(model.message(), u"The database reported a problem: no such table: bookmarks"_s);
}

// Notes

TEST_F(AppModelTest, ANewNoteIsAnEmptyDraftOnItsTarget)
{
    const QDateTime before = QDateTime::currentDateTimeUtc();
    model.newNote(u"lesson"_s, u"a1-l1"_s);
    const QDateTime after = QDateTime::currentDateTimeUtc();

    ASSERT_TRUE(model.editsNote());
    const Note &draft = *model.noteDraft();
    EXPECT_EQ(draft.id, 0);
    EXPECT_EQ(draft.targetType, u"lesson"_s);
    EXPECT_EQ(draft.targetID, u"a1-l1"_s);
    EXPECT_EQ(draft.body, u""_s);
    EXPECT_EQ(draft.created, draft.updated);
    EXPECT_GE(draft.created, before);
    EXPECT_LE(draft.created, after);
    EXPECT_EQ(changed.take(), QStringList(u"noteDraft"_s));
}

TEST_F(AppModelTest, ANewNoteIsNotWrittenYet)
{
    model.newNote(u"general"_s, u"general"_s);
    EXPECT_TRUE(store().notes().isEmpty());
    EXPECT_EQ(store().revision(), 0);
}

TEST_F(AppModelTest, ANewNoteLeavesTheScreenAsItIs)
{
    model.setScreen(Screen::History);
    model.newNote(u"general"_s, u"general"_s);
    EXPECT_EQ(model.screen(), Screen::History);
}

TEST_F(AppModelTest, ANewNoteNeedsNoStore)
{
    UserStore::setShared(nullptr);
    model.newNote(u"general"_s, u"general"_s);
    EXPECT_TRUE(model.editsNote());
}

TEST_F(AppModelTest, DismissingANoteClosesTheEditor)
{
    model.newNote(u"general"_s, u"general"_s);
    static_cast<void>(changed.take());
    model.dismissNote();
    EXPECT_FALSE(model.editsNote());
    EXPECT_EQ(model.noteDraft(), std::nullopt);
    EXPECT_EQ(changed.take(), QStringList(u"noteDraft"_s));
}

TEST_F(AppModelTest, ANewNoteWaitsWhileAnotherHoldsUnsavedWords)
{
    model.newNote(u"lesson"_s, u"a1-l1"_s);
    model.setDraftIsUnsaved(true);
    model.newNote(u"general"_s, u"general"_s);
    ASSERT_TRUE(model.noteDraft());
    EXPECT_EQ(model.noteDraft()->targetID, u"a1-l1"_s);
    EXPECT_TRUE(model.draftIsUnsaved());
}

TEST_F(AppModelTest, ADraftThatIsPutInOrTakenAwayHoldsNoUnsavedWords)
{
    model.newNote(u"lesson"_s, u"a1-l1"_s);
    model.setDraftIsUnsaved(true);
    model.dismissNote();
    EXPECT_FALSE(model.draftIsUnsaved());
    model.newNote(u"lesson"_s, u"a1-l2"_s);
    EXPECT_FALSE(model.draftIsUnsaved());
}

namespace {

// A save panel that remembers what it was asked.
struct Panel {
    std::optional<QString> answer;
    QStringList asked;

    [[nodiscard]] AppModel::SavePanel function()
    {
        return [this](const QString &name) {
            asked.append(name);
            return answer;
        };
    }
};

class AppModelExport : public AppModelTest
{
protected:
    // With what comes of it when the caller is done.
    void exportNotes()
    {
        model.exportNotes();
        QCoreApplication::sendPostedEvents(&model);
    }
};

} // namespace

TEST_F(AppModelExport, WritesTheStoreToTheFileThatTheUserNames)
{
    Note note{ .targetType = u"lesson"_s, .targetID = u"a1-l1"_s, .body = u"déjà ✓"_s };
    store().save(note);
    Panel panel{ .answer = folder.path(u"My own name.txt"_s), .asked = {} };
    model.setSavePanel(panel.function());
    exportNotes();
    EXPECT_EQ(panel.asked, QStringList{ u"Halvorin notes.txt"_s });
    EXPECT_EQ(
        QString::fromUtf8(fileBytes(*panel.answer)), store().exportText(ContentLibrary::shared()));
    EXPECT_FALSE(model.message());
}

TEST_F(AppModelExport, ThatIsCanceledWritesNothingAndKeepsTheMessage)
{
    model.setMessage(u"An earlier one"_s);
    const Fingerprint before = fingerprint(folder.path());
    Panel panel;
    model.setSavePanel(panel.function());
    exportNotes();
    EXPECT_EQ(panel.asked.size(), 1);
    EXPECT_EQ(fingerprint(folder.path()), before);
    EXPECT_EQ(model.message(), u"An earlier one"_s);
}

TEST_F(AppModelExport, SaysWhyTheFileCouldNotBeWritten)
{
    Panel panel{ .answer = folder.path(u"no/such/folder/notes.txt"_s), .asked = {} };
    model.setSavePanel(panel.function());
    exportNotes();
    ASSERT_TRUE(model.message());
    EXPECT_TRUE(model.message()->startsWith(u"The notes could not be saved: "_s));
    EXPECT_GT(model.message()->size(), u"The notes could not be saved: "_s.size());
}

TEST_F(AppModelExport, WithoutAStoreDoesNotEvenAsk)
{
    UserStore::setShared(nullptr);
    Panel panel{ .answer = folder.path(u"notes.txt"_s), .asked = {} };
    model.setSavePanel(panel.function());
    exportNotes();
    EXPECT_TRUE(panel.asked.isEmpty());
    EXPECT_FALSE(model.message());
}

TEST_F(AppModelExport, WithoutAPanelDoesNothing)
{
    exportNotes();
    EXPECT_FALSE(model.message());
}
