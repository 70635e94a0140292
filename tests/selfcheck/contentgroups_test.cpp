// The groups of the self-test that look at the course: the installed one passes, and each kind of
// mistake that is planted in it shows in the checks that are about it, and in no others.

#include "content/contentlibrary.h"
#include "kit/netstatus.h"
#include "kit/opener.h"
#include "recording.h"
#include "selfcheck/selftest/groups.h"
#include "selfcheckworld.h"
#include "shell/appmodel.h"
#include "store/storetesting.h"
#include "support/qtprinters.h"

#include <QUrl>

#include <gtest/gtest.h>

#include <functional>
#include <ostream>

using namespace Qt::StringLiterals;
using TestCourse::Files;

namespace {

const QString kCourse = u"course.txt"_s;
const QString kQuizzes = u"quizzes.txt"_s;
const QString kGear = u"gear.txt"_s;
const QString kTimeline = u"timeline.txt"_s;
const QString kVideos = u"videos.tsv"_s;
const QString kSoftware = u"software.txt"_s;
const QString kWorkflows = u"workflows.txt"_s;

using Change = std::function<void(Files &)>;

// Every place of the text that stands in the file is another text.
Change replacing(const QString &file, const QByteArray &before, const QByteArray &after)
{
    return [=](Files &files) {
        ASSERT_TRUE(files[file].contains(before)) << before.constData();
        files[file].replace(before, after);
    };
}

Change adding(const QString &file, const QByteArray &records)
{
    return [=](Files &files) { files[file] += "\n" + records; };
}

// Only so many records of a type; those that follow are of a type that nobody knows.
Change keeping(const QString &file, const QByteArray &type, int count)
{
    return [=](Files &files) {
        QByteArray &text = files[file];
        const QByteArray heading = "=== " + type + ' ';
        qsizetype at = -1;
        for (int i = 0; i <= count; ++i)
            at = text.indexOf(heading, at + 1);
        ASSERT_GE(at, 0) << heading.constData();
        text = text.first(at) + text.sliced(at).replace(heading, "=== NOTHING ");
    };
}

Change without(const QString &file)
{
    return [=](Files &files) { files.remove(file); };
}

Change both(const Change &first, const Change &second)
{
    return [=](Files &files) {
        first(files);
        second(files);
    };
}

const QByteArray kFullText = QByteArray("A full text. ").repeated(40);

QByteArray lesson(const QByteArray &fields, const QByteArray &body = kFullText)
{
    return "=== LESSON x\n" + fields + "---\n" + body + '\n';
}

QByteArray question(const QByteArray &fields)
{
    return "=== QUESTION x\nmodule: m01\nq: What?\n" + fields;
}

QByteArray gear(const QByteArray &fields, const QByteArray &body = kFullText)
{
    return "=== GEAR x\nname: X\n" + fields + "---\n" + body + '\n';
}

QByteArray event(const QByteArray &fields)
{
    return "=== EVENT x\nyear: 1900\ntitle: X\n" + fields + "---\nIt happened.\n";
}

struct Planted {
    const char *name;
    Change change;
    QStringList told; ///< How the labels of the failing checks begin.
};

void PrintTo(const Planted &planted, std::ostream *stream)
{
    *stream << planted.name;
}

QString clean(const QString &problem = {})
{
    return u"content files check clean: "_s + problem;
}

// The checks of a group that fail with a course changed so.
QStringList failures(const Change &change, const std::function<void(HVTestRun &)> &group)
{
    prepareSelfTestGroups();
    Files files = installedCourseFiles();
    change(files);
    const StoreTesting::Folder folder;
    TestCourse::share(folder.path(), files);
    Recording recording;
    group(recording.run);
    ContentLibrary::setShared(nullptr);
    return recording.failed();
}

void expectFailures(const QStringList &actual, const QStringList &beginnings)
{
    EXPECT_EQ(actual.size(), beginnings.size()) << qPrintable(actual.join(u'\n'));
    for (qsizetype i = 0; i < qMin(actual.size(), beginnings.size()); ++i)
        EXPECT_TRUE(actual[i].startsWith(beginnings[i])) << qPrintable(actual[i]);
}

class ContentGroup : public testing::TestWithParam<Planted>
{
};
class SearchGroup : public testing::TestWithParam<Planted>
{
};
class VideoGroup : public testing::TestWithParam<Planted>
{
};

std::string nameOf(const testing::TestParamInfo<Planted> &info)
{
    return info.param.name;
}

} // namespace

TEST_P(ContentGroup, TellsThePlantedMistake)
{
    expectFailures(failures(GetParam().change, HVSelfTest::contentTests), GetParam().told);
}

INSTANTIATE_TEST_SUITE_P(Problems, ContentGroup,
    testing::Values(Planted{ "None", [](Files &) {}, {} },
        Planted{ "MissingFile", without(kWorkflows),
            { clean(u"workflows.txt: the file can't be found"_s),
                u"23 software/plug-in entries and a 0-step"_s } },
        Planted{ "LessonOfAnUnknownModule", adding(kCourse, lesson("module: m99\ntitle: X\n")),
            { clean(u"lesson x: unknown module m99"_s) } },
        Planted{ "LessonWithoutATitle", adding(kCourse, lesson("module: m01\n")),
            { clean(u"lesson x: missing title or too short"_s),
                u"every lesson opens with a title and full text"_s } },
        Planted{ "LessonTooShort", adding(kCourse, lesson("module: m01\ntitle: X\n", "Short.")),
            { clean(u"lesson x: missing title or too short"_s),
                u"every lesson opens with a title and full text"_s } },
        Planted{ "LessonWithUnknownGear",
            adding(kCourse, lesson("module: m01\ntitle: X\ngear: tripod, nothing\n")),
            { clean(u"lesson x: unknown gear nothing"_s) } },
        Planted{ "LessonWithAnUnknownVideo",
            adding(kCourse, lesson("module: m01\ntitle: X\nvideos: nothing\n")),
            { clean(u"lesson x: unknown video nothing"_s) } },
        Planted{ "LessonTwice",
            adding(kCourse, "=== LESSON m01.1\nmodule: m01\ntitle: X\n---\n" + kFullText),
            { clean(u"duplicate lesson ids"_s) } },
        Planted{ "QuestionOfAnUnknownModule",
            adding(
                kQuizzes, "=== QUESTION x\nmodule: m99\nwrong: A\nright: B\nwrong: C\nwhy: So.\n"),
            { clean(u"question x: unknown module"_s) } },
        Planted{ "QuestionWithTwoOptions",
            adding(kQuizzes, question("wrong: A\nright: B\nwhy: So.\n")),
            { clean(u"question x: needs 3+ options and exactly one right answer"_s),
                u"every quiz question has exactly one correct answer among 3+ choices"_s } },
        Planted{ "QuestionWithTwoRightAnswers",
            adding(kQuizzes, question("right: A\nright: B\nwrong: C\nwhy: So.\n")),
            { clean(u"question x: needs 3+ options and exactly one right answer"_s),
                u"every quiz question has exactly one correct answer among 3+ choices"_s } },
        Planted{ "QuestionUnexplained",
            adding(kQuizzes, question("wrong: A\nright: B\nwrong: C\n")),
            { clean(u"question x: no explanation"_s) } },
        Planted{ "QuestionWithEqualOptions",
            adding(kQuizzes, question("wrong: A\nright: B\nwrong: A\nwhy: So.\n")),
            { clean(u"question x: duplicate options"_s) } },
        Planted{ "GearWithoutADrawing", adding(kGear, gear("diagram: film35\n")),
            { clean(u"gear x: no diagram 'film35'"_s),
                u"every encyclopedia entry has a drawn diagram"_s } },
        Planted{ "GearTooShort", adding(kGear, gear("diagram: tripod\n", "Short.")),
            { clean(u"gear x: text too short"_s) } },
        Planted{ "GearWithUnknownSeeAlso",
            adding(kGear, gear("diagram: tripod\nsee: tripod, nothing\n")),
            { clean(u"gear x: see-also nothing missing"_s) } },
        Planted{ "ModelWithoutSpecifications",
            adding(kGear, gear("diagram: tripod\nmodel: M | u | | https://a.b | 2026-01-01\n")),
            { clean(u"gear x: model 'M' needs specs, https link and date checked"_s) } },
        Planted{ "ModelWithAnInsecureLink",
            adding(kGear, gear("diagram: tripod\nmodel: M | u | s | http://a.b | 2026-01-01\n")),
            { clean(u"gear x: model 'M' needs specs, https link and date checked"_s),
                u"130 named example models, each with the maker's link and the date checked"_s } },
        Planted{ "ModelCheckedInAnotherYear",
            adding(kGear, gear("diagram: tripod\nmodel: M | u | s | https://a.b | 2025-12-31\n")),
            { u"130 named example models, each with the maker's link and the date checked"_s } },
        Planted{ "GearTwice",
            adding(kGear, "=== GEAR tripod\nname: X\ndiagram: tripod\n---\n" + kFullText),
            { clean(u"duplicate gear ids"_s) } },
        Planted{ "EventWithoutASource", adding(kTimeline, event({})),
            { clean(u"history x: needs a cited https source with date"_s),
                u"65 history events, every one cited"_s } },
        Planted{ "EventWithAnInsecureSource",
            adding(kTimeline, event("source: A | http://a.b | 2026-01-01\n")),
            { clean(u"history x: needs a cited https source with date"_s) } },
        Planted{ "VideoMalformed",
            adding(kVideos, "abc\tTitle\tChannel\tm01\tTopic\t61\t2020-01-02\t2026-10-24\n"),
            { clean(u"video abc: malformed"_s) } },
        Planted{ "SoftwareWithAnInsecureLink",
            adding(kSoftware, "=== SOFTWARE x\nname: X\nurl: http://a.b\n---\nText.\n"),
            { clean(u"software x: link"_s) } }),
    nameOf);

INSTANTIATE_TEST_SUITE_P(Checks, ContentGroup,
    testing::Values(Planted{ "ElevenModules", keeping(kCourse, "MODULE", 11),
                        { clean(u"lesson m12"_s), u"11 modules (12 or more)"_s } },
        Planted{ "FiftyNineLessons", keeping(kCourse, "LESSON", 59),
            { u"59 lessons (60 or more)"_s, u"every module has lessons"_s } },
        Planted{ "ModuleWithoutLessonsAndQuestions",
            adding(kCourse, "=== MODULE m13\ntitle: Empty\n"),
            { u"every module has lessons"_s,
                u"every module has a quiz of 5+ questions (96 questions)"_s } },
        Planted{ "ModuleWithFourQuestions", keeping(kQuizzes, "QUESTION", 92),
            { u"every module has a quiz of 5+ questions (92 questions)"_s } },
        Planted{ "AHundredAndFortyNineEntries", keeping(kGear, "GEAR", 149),
            { clean(u"lesson "_s), u"149 encyclopedia entries (150 or more)"_s } },
        Planted{ "FiftyNineModels",
            [](Files &files) {
                QByteArray &text = files[kGear];
                qsizetype at = -1;
                for (int i = 0; i < 60; ++i)
                    at = text.indexOf("\nmodel: ", at + 1);
                text = text.first(at) + text.sliced(at).replace("\nmodel: ", "\nother: ");
            },
            { u"59 named example models, each with the maker's link and the date checked"_s } },
        Planted{ "TwentyFourEvents", keeping(kTimeline, "EVENT", 24),
            { u"24 history events, every one cited"_s } },
        Planted{ "ThirtyNineVideos",
            [](Files &files) {
                files[kVideos] = files[kVideos].split('\n').first(40).join('\n') + '\n';
            },
            { clean(u"lesson "_s), u"39 videos (40 or more)"_s } },
        Planted{ "NineProgramsOfSoftware", keeping(kSoftware, "SOFTWARE", 9),
            { u"9 software/plug-in entries and a 10-step film vs digital workflow"_s } },
        Planted{ "SevenSteps", keeping(kWorkflows, "STEP", 7),
            { u"23 software/plug-in entries and a 7-step film vs digital workflow"_s } },
        Planted{ "FNumbersWithoutSensors",
            both(replacing(kCourse, "sensor", "chip"), replacing(kCourse, "Sensor", "Chip")),
            { clean(u"lesson "_s),
                u"the f-number lessons explain exposure, depth of field, focal length and sensor "
                "size separately"_s } },
        Planted{ "BareNameOfTheMaker",
            adding(kGear, gear("diagram: tripod\n", kFullText + "By Corvane.")),
            { u"no bare \"Corvane\" branding anywhere in the content or help"_s } },
        Planted{ "FullNameOfTheMaker",
            adding(kGear, gear("diagram: tripod\n", kFullText + "By Corvane (CRVN).")), {} }),
    nameOf);

TEST(ContentGroupLabels, NameTwelveProblemsAtMost)
{
    const auto manyShortLessons = [](Files &files) {
        for (int i = 0; i < 13; ++i)
            files[kCourse] += "\n=== LESSON x" + QByteArray::number(i)
                + "\nmodule: m01\ntitle: X\n---\nShort.\n";
    };
    const QString label = failures(manyShortLessons, HVSelfTest::contentTests).value(0);
    EXPECT_EQ(label.count(u" | "_s), 11);
    EXPECT_TRUE(label.endsWith("lesson x11: missing title or too short"_L1)) << qPrintable(label);
}

TEST_P(SearchGroup, TellsThePlantedMistake)
{
    expectFailures(failures(GetParam().change, HVSelfTest::searchTests), GetParam().told);
}

INSTANTIATE_TEST_SUITE_P(Checks, SearchGroup,
    testing::Values(Planted{ "None", [](Files &) {}, {} },
        Planted{ "NoTripod",
            both(replacing(kGear, "=== GEAR tripod\n", "=== GEAR stand\n"),
                replacing(kGear, "name: Tripod\n", "name: Tripod stand\n")),
            { u"\"tripod\" → first result is the Tripod entry ("_s,
                u"typing part of a word (\"tripo\") already finds it"_s,
                u"search ignores capitals"_s,
                u"the tripod entry uses the tripod diagram and lists 0 models"_s,
                u"tripod entry exists"_s, u"the tripod diagram renders"_s,
                u"the tripod diagram is drawn (0 lit pixels of 104000)"_s } },
        Planted{ "TripodNamedOtherwise",
            replacing(kGear, "=== GEAR tripod\nname: Tripod\n", "=== GEAR tripod\nname: Stand\n"),
            { u"\"tripod\" → first result is the Tripod entry ("_s } },
        Planted{ "NoApertureInLessons", replacing(kCourse, "perture", "pening"),
            { u"\"aperture\" finds several lessons"_s } },
        Planted{ "NoKodak", replacing(kTimeline, "Kodak", "Codec"),
            { u"\"Kodak\" finds history events"_s } },
        Planted{ "NoLightroom", replacing(kSoftware, "Lightroom", "Darkroom"),
            { u"\"Lightroom\" finds the software entry"_s } },
        Planted{ "TripodWithAnotherDrawing",
            replacing(kGear, "category: Supports\ndiagram: tripod\naka: camera stand",
                "category: Supports\ndiagram: monopod\naka: camera stand"),
            { u"the tripod entry uses the tripod diagram and lists 4 models"_s } },
        Planted{ "TripodWithTwoModels",
            both(replacing(kGear, "model: Gitzo GT2542", "other: Gitzo GT2542"),
                replacing(kGear, "model: Manfrotto MT055CXPRO3", "other: Manfrotto MT055CXPRO3")),
            { u"the tripod entry uses the tripod diagram and lists 2 models"_s } }),
    nameOf);

TEST(SearchGroupState, LeavesTheEncyclopediaSearchedForTripods)
{
    failures([](Files &) {}, HVSelfTest::searchTests);
    EXPECT_EQ(AppModel::shared().gearQuery(), u"tripod"_s);
    EXPECT_EQ(AppModel::shared().gearID(), std::nullopt);
}

TEST_P(VideoGroup, TellsThePlantedMistake)
{
    expectFailures(failures(GetParam().change, runVideoTests), GetParam().told);
}

INSTANTIATE_TEST_SUITE_P(Checks, VideoGroup,
    testing::Values(Planted{ "None", [](Files &) {}, {} },
        Planted{ "Malformed",
            adding(kVideos, "abc\tTitle\tChannel\tm01\tTopic\t61\t2020-01-02\t2026-10-24\n"),
            { u"all 49 video links are well formed"_s } },
        Planted{ "Twice",
            adding(
                kVideos, "Oh4m8Ees-3Q\tTitle\tChannel\tm01\tTopic\t61\t2020-01-02\t2026-10-24\n"),
            { u"no duplicate videos"_s } },
        Planted{ "OfNineModules",
            both(replacing(kVideos, "\tm12\t", "\tm01\t"),
                both(replacing(kVideos, "\tm11\t", "\tm01\t"),
                    replacing(kVideos, "\tm10\t", "\tm01\t"))),
            { u"videos cover 9 modules"_s } },
        Planted{ "NoVideos", without(kVideos),
            { u"videos cover 0 modules"_s,
                u"the player uses the official YouTube embed page with an https referrer"_s,
                u"offline: nothing opens and the \"needs internet\" message shows"_s,
                u"online: Open in YouTube opens the watch page"_s } }),
    nameOf);

TEST(VideoGroupBrowser, MustBeLeftAloneOfflineAndBeGivenOneAddressOnline)
{
    const QString offline = u"offline: nothing opens and the \"needs internet\" message shows"_s;
    const QString online = u"online: Open in YouTube opens the watch page"_s;
    const auto failuresWith = [](const QList<QUrl> &opened) {
        const auto group = [&](HVTestRun &run) {
            // An action of this test's, since the real one would open the browser.
            Opener::setAction([](const QUrl &) {});
            HVSelfTest::videoTests(
                run, [&] { return opened; }, [] {});
            Opener::setAction({});
            NetStatus::setOverride(std::nullopt);
        };
        return failures([](Files &) {}, group);
    };
    const QUrl page(u"https://www.youtube.com/watch?v=Oh4m8Ees-3Q"_s);
    EXPECT_EQ(failuresWith({}), QStringList(online));
    EXPECT_EQ(failuresWith({ page }), QStringList(offline));
    EXPECT_EQ(failuresWith({ page, page }), (QStringList{ offline, online }));
}
