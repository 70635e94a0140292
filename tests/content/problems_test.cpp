#include "content/contentlibrary.h"

#include "content/coursefolder.h"
#include "support/qtprinters.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Parts of a course with nothing wrong; each test writes what it wants otherwise.
const QByteArray kModule = "=== MODULE a1\ntitle: Light\n";
const QByteArray kGear
    = "=== GEAR tripod\nname: Tripod\ndiagram: tripod\n---\n" + QByteArray(120, 'x') + '\n';
const QByteArray kVideos = "headings\nabcdefghijk\tTitle\tChannel\ta1\tTopic\t61\t2020-01-02\t"
                           "2026-10-24\n";

QByteArray lessonRecord(
    const QByteArray &id, const QByteArray &fields = {}, const QByteArray &body = {})
{
    return "=== LESSON " + id + "\nmodule: a1\ntitle: One\n" + fields + "---\n"
        + (body.isEmpty() ? QByteArray(400, 'x') : body) + '\n';
}

QStringList problemsOf(const QList<std::pair<QString, QByteArray>> &files)
{
    const CourseFolder folder;
    folder.write(u"course.txt"_s, kModule);
    folder.write(u"gear.txt"_s, kGear);
    folder.write(u"videos.tsv"_s, kVideos);
    for (const auto &[name, text] : files)
        folder.write(name, text);
    return ContentLibrary(folder.path()).problems();
}

QStringList problemsInCourse(const QByteArray &records)
{
    return problemsOf({ { u"course.txt"_s, kModule + records } });
}

QStringList problemsInQuiz(const QByteArray &fields)
{
    return problemsOf({ { u"quizzes.txt"_s, "=== QUESTION q1\n" + fields } });
}

QStringList problemsInGear(const QByteArray &records)
{
    return problemsOf({ { u"gear.txt"_s, kGear + records } });
}

QStringList problemsOfModel(const QByteArray &model)
{
    return problemsInGear(
        "=== GEAR g\ndiagram: zoom\nmodel: " + model + "\n---\n" + QByteArray(120, 'x'));
}

QStringList problemsInTimeline(const QByteArray &sources)
{
    return problemsOf({ { u"timeline.txt"_s, "=== EVENT e1\nyear: 1839\n" + sources } });
}

QStringList problemsInSoftware(const QByteArray &fields)
{
    return problemsOf({ { u"software.txt"_s, "=== SOFTWARE s1\n" + fields } });
}

// A body of so many characters as a reader counts them, though more in memory.
QByteArray characters(int count)
{
    return QByteArray("e\xCC\x81").repeated(count - 1) + 'x';
}

} // namespace

TEST(ContentProblems, AreNoneInASoundCourse)
{
    EXPECT_EQ(
        problemsOf({ { u"course.txt"_s,
                         kModule + lessonRecord("l1", "gear: tripod\nvideos: abcdefghijk\n") },
            { u"quizzes.txt"_s,
                "=== QUESTION q1\nmodule: a1\nwrong: A\nright: B\nwrong: C\nwhy: So.\n" },
            { u"timeline.txt"_s, "=== EVENT e1\nsource: A|https://example.com|2026-10-24\n" },
            { u"software.txt"_s, "=== SOFTWARE s1\nurl: https://example.com\n" } }),
        QStringList());
}

TEST(ContentProblems, OfAnEmptyFolderAreItsSevenLoadErrors)
{
    const QTemporaryDir folder;
    const ContentLibrary library(folder.path());
    EXPECT_EQ(library.problems().size(), 7);
    EXPECT_EQ(library.problems(), library.loadErrors());
}

TEST(ContentProblems, AreToldInTheOrderOfTheirRules)
{
    const CourseFolder folder;
    folder.remove(u"workflows.txt"_s);
    folder.write(u"course.txt"_s, "=== LESSON l\nmodule: m\ngear: g\nvideos: v\n=== LESSON l\n");
    folder.write(u"quizzes.txt"_s, "=== QUESTION q\nwrong: A\nwrong: A\n");
    folder.write(u"gear.txt"_s, "=== GEAR g1\nsee: s\nmodel: M\n=== GEAR g1\n");
    folder.write(u"timeline.txt"_s, "=== EVENT e\n");
    folder.write(u"videos.tsv"_s, "\nid\t\t\t\t\t\t\t\n");
    folder.write(u"software.txt"_s, "=== SOFTWARE s\n");
    EXPECT_EQ(ContentLibrary(folder.path()).problems(),
        (QStringList{
            u"workflows.txt: the file can't be found"_s,
            u"lesson l: unknown module m"_s,
            u"lesson l: missing title or too short"_s,
            u"lesson l: unknown gear g"_s,
            u"lesson l: unknown video v"_s,
            u"lesson l: unknown module "_s,
            u"lesson l: missing title or too short"_s,
            u"duplicate lesson ids"_s,
            u"question q: unknown module"_s,
            u"question q: needs 3+ options and exactly one right answer"_s,
            u"question q: no explanation"_s,
            u"question q: duplicate options"_s,
            u"gear g1: no diagram ''"_s,
            u"gear g1: text too short"_s,
            u"gear g1: see-also s missing"_s,
            u"gear g1: model 'M' needs specs, https link and date checked"_s,
            u"gear g1: no diagram ''"_s,
            u"gear g1: text too short"_s,
            u"duplicate gear ids"_s,
            u"history e: needs a cited https source with date"_s,
            u"video id: malformed"_s,
            u"software s: link"_s,
        }));
}

// Lessons

TEST(LessonProblems, NameAModuleThatIsNotThere)
{
    EXPECT_EQ(problemsInCourse("=== LESSON l1\nmodule: A1\ntitle: One\n---\n" + characters(400)),
        QStringList{ u"lesson l1: unknown module A1"_s });
}

TEST(LessonProblems, NameAMissingTitleOnce)
{
    EXPECT_EQ(problemsInCourse("=== LESSON l1\nmodule: a1\n---\nShort, too."),
        QStringList{ u"lesson l1: missing title or too short"_s });
    EXPECT_EQ(problemsInCourse("=== LESSON l1\nmodule: a1\n---\n" + characters(400)),
        QStringList{ u"lesson l1: missing title or too short"_s });
}

TEST(LessonProblems, NameABodyOfLessThanFourHundredCharacters)
{
    EXPECT_EQ(problemsInCourse(lessonRecord("l1", {}, characters(400))), QStringList());
    EXPECT_EQ(problemsInCourse(lessonRecord("l1", {}, characters(399))),
        QStringList{ u"lesson l1: missing title or too short"_s });
}

TEST(LessonProblems, NameEachGearAndVideoThatIsNotThereAsOftenAsItIsListed)
{
    EXPECT_EQ(problemsInCourse(
                  lessonRecord("l1", "gear: a, tripod, Tripod\nvideos: v, abcdefghijk, v\n")),
        (QStringList{
            u"lesson l1: unknown gear a"_s,
            u"lesson l1: unknown gear Tripod"_s,
            u"lesson l1: unknown video v"_s,
            u"lesson l1: unknown video v"_s,
        }));
}

TEST(LessonProblems, NameRepeatedIdsOnceHoweverManyThereAre)
{
    EXPECT_EQ(problemsInCourse(lessonRecord("l1") + lessonRecord("l2") + lessonRecord("l1")
                  + lessonRecord("l2") + lessonRecord("l1")),
        QStringList{ u"duplicate lesson ids"_s });
}

// Questions

TEST(QuestionProblems, NameAModuleThatIsNotThereWithoutSayingWhich)
{
    EXPECT_EQ(problemsInQuiz("module: b\nwrong: A\nright: B\nwrong: C\nwhy: So.\n"),
        QStringList{ u"question q1: unknown module"_s });
}

TEST(QuestionProblems, NameFewerThanThreeOptionsAndAnythingButOneRightAnswer)
{
    const QStringList wrong{ u"question q1: needs 3+ options and exactly one right answer"_s };
    EXPECT_EQ(problemsInQuiz("module: a1\nwrong: A\nright: B\nwhy: So.\n"), wrong);
    EXPECT_EQ(problemsInQuiz("module: a1\nwrong: A\nwrong: B\nwrong: C\nwhy: So.\n"), wrong);
    EXPECT_EQ(problemsInQuiz("module: a1\nright: A\nright: B\nwrong: C\nwhy: So.\n"), wrong);
    EXPECT_EQ(
        problemsInQuiz("module: a1\nwrong: A\nwrong: B\nright: C\nwhy: So.\n"), QStringList());
}

TEST(QuestionProblems, NameAMissingAnswerAndAMissingExplanationInThisOrder)
{
    EXPECT_EQ(problemsInQuiz("module: a1\nwrong: A\nwrong: B\nwrong: C\n"),
        (QStringList{ u"question q1: needs 3+ options and exactly one right answer"_s,
            u"question q1: no explanation"_s }));
}

TEST(QuestionProblems, NameARightAnswerThatIsAlsoWrongAsADuplicateAlone)
{
    EXPECT_EQ(problemsInQuiz("module: a1\nwrong: A\nright: A\nwrong: C\nwhy: So.\n"),
        QStringList{ u"question q1: duplicate options"_s });
    EXPECT_EQ(
        problemsInQuiz("module: a1\nwrong: A\nright: a\nwrong: C\nwhy: So.\n"), QStringList());
}

// Gear

TEST(GearProblems, NameADrawingThatIsNotThere)
{
    EXPECT_EQ(problemsInGear("=== GEAR g\ndiagram: Tripod\n---\n" + characters(120)),
        QStringList{ u"gear g: no diagram 'Tripod'"_s });
    EXPECT_EQ(
        problemsInGear("=== GEAR g\ndiagram: film-35\n---\n" + characters(120)), QStringList());
}

TEST(GearProblems, NameABodyOfLessThanAHundredAndTwentyCharacters)
{
    EXPECT_EQ(problemsInGear("=== GEAR g\ndiagram: zoom\n---\n" + characters(120)), QStringList());
    EXPECT_EQ(problemsInGear("=== GEAR g\ndiagram: zoom\n---\n" + characters(119)),
        QStringList{ u"gear g: text too short"_s });
}

TEST(GearProblems, NameEachSeeAlsoThatIsNotThere)
{
    EXPECT_EQ(
        problemsInGear("=== GEAR g\ndiagram: zoom\nsee: tripod, a, g, a\n---\n" + characters(120)),
        (QStringList{ u"gear g: see-also a missing"_s, u"gear g: see-also a missing"_s }));
}

TEST(GearProblems, NameAModelThatLacksNameSpecificationsSecureLinkOrDate)
{
    EXPECT_EQ(problemsOfModel("M||S|https://|xxxxxxxxxx"), QStringList());
    for (const QByteArray &model : { QByteArray("M|u||https://a.b|2026-10-24"),
             QByteArray("M|u|s|http://a.b|2026-10-24"), QByteArray("M|u|s|HTTPS://a.b|2026-10-24"),
             QByteArray("M|u|s||2026-10-24"), QByteArray("M|u|s|https://a.b|2026-1-1"),
             QByteArray("M|u|s|https://a.b|2026-10-24x"), QByteArray("M|u|s|https://a.b") })
        EXPECT_EQ(problemsOfModel(model),
            QStringList{ u"gear g: model 'M' needs specs, https link and date checked"_s })
            << model.constData();
    EXPECT_EQ(problemsOfModel("|u|s|https://a.b|2026-10-24"),
        QStringList{ u"gear g: model '' needs specs, https link and date checked"_s });
}

TEST(GearProblems, NameRepeatedIdsOnce)
{
    EXPECT_EQ(problemsInGear(kGear + kGear), QStringList{ u"duplicate gear ids"_s });
}

// History, videos and software

TEST(HistoryProblems, NameAnEventOnceIfItLacksASourceOrAnyOfThemIsIncomplete)
{
    const QStringList uncited{ u"history e1: needs a cited https source with date"_s };
    const QByteArray sound = "source: A|https://a.b|2026-10-24\n";
    EXPECT_EQ(problemsInTimeline(sound + sound), QStringList());
    EXPECT_EQ(problemsInTimeline("source: |https://a.b|xxxxxxxxxx\n"), QStringList());
    EXPECT_EQ(problemsInTimeline({}), uncited);
    EXPECT_EQ(problemsInTimeline(sound + "source: A|http://a.b|2026-10-24\n"), uncited);
    EXPECT_EQ(problemsInTimeline("source: A|https://a.b|2026\n" + sound), uncited);
    EXPECT_EQ(problemsInTimeline("source: A\nsource: B\n"), uncited);
}

TEST(VideoProblems, NameAMalformedVideo)
{
    EXPECT_EQ(
        problemsOf({ { u"videos.tsv"_s,
            kVideos + "abcdefghij\tTitle\tChannel\ta1\tTopic\t61\t2020-01-02\t2026-10-24\n" } }),
        QStringList{ u"video abcdefghij: malformed"_s });
}

TEST(SoftwareProblems, NameALinkThatIsNotSecure)
{
    const QStringList link{ u"software s1: link"_s };
    EXPECT_EQ(problemsInSoftware("url: https://a.b\n"), QStringList());
    EXPECT_EQ(problemsInSoftware("url: http://a.b\n"), link);
    EXPECT_EQ(problemsInSoftware("url: Https://a.b\n"), link);
    EXPECT_EQ(problemsInSoftware({}), link);
}
