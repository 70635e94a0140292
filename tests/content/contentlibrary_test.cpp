#include "content/contentlibrary.h"

#include "content/coursefolder.h"
#include "support/environment.h"
#include "support/ordinaryuser.h"
#include "support/qtprinters.h"

#include <QDir>

#include <gtest/gtest.h>

#include <limits>
#include <utility>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

template <typename Value>
QStringList idsOf(const QList<Value> &values)
{
    QStringList ids;
    for (const Value &value : values)
        ids.append(value.id);
    return ids;
}

// What stands in loadErrors() if one file alone can't be read.
QStringList onlyError(const QString &fileName, const QString &problem)
{
    return { fileName + u": " + problem };
}

QStringList sevenErrors(const QString &problem)
{
    QStringList errors;
    for (const QString &name : kCourseFiles)
        errors += onlyError(name, problem);
    return errors;
}

// A course with something in each of its files, with Unix line ends.
const QList<std::pair<QString, QByteArray>> kCourse = {
    { u"course.txt"_s,
        "=== MODULE a1\ntitle: Light\n=== LESSON a1-l1\nmodule: a1\ntitle: "
        "One\n---\nText.\n\nEnd.\n" },
    { u"quizzes.txt"_s,
        "=== QUESTION q1\nmodule: a1\nq: Which?\nwrong: A\nright: B\nwrong: C\nwhy: So.\n" },
    { u"gear.txt"_s,
        "=== GEAR tripod\nname: Tripod\ncategory: Support\nmodel: A|B|C|D|E\n---\nText.\n" },
    { u"timeline.txt"_s, "=== EVENT e1\nyear: 1839\nsource: A|B|C\n---\nText.\n" },
    { u"videos.tsv"_s, "id\t\t\t\t\t\t\t\nv1\tTitle\tChannel\ta1\tTopic\t61\t2020\t2026-10-24\n" },
    { u"software.txt"_s, "=== SOFTWARE s1\nname: Name\n---\nText.\n" },
    { u"workflows.txt"_s, "=== STEP w1\nstage: Develop\nfilm: A\ndigital: B\n" },
};

void writeCourse(const CourseFolder &folder)
{
    for (const auto &[name, bytes] : kCourse)
        folder.write(name, bytes);
}

void expectSameCourse(const ContentLibrary &a, const ContentLibrary &b)
{
    EXPECT_EQ(a.modules(), b.modules());
    EXPECT_EQ(a.lessons(), b.lessons());
    EXPECT_EQ(a.questions(), b.questions());
    EXPECT_EQ(a.gear(), b.gear());
    EXPECT_EQ(a.timeline(), b.timeline());
    EXPECT_EQ(a.videos(), b.videos());
    EXPECT_EQ(a.software(), b.software());
    EXPECT_EQ(a.workflow(), b.workflow());
}

} // namespace

// Files that can and that can't be read

TEST(ContentLibraryLoading, ReadsAllSevenFilesWithoutAnError)
{
    const CourseFolder folder;
    writeCourse(folder);
    const ContentLibrary library(folder.path());
    EXPECT_EQ(library.loadErrors(), QStringList());
    EXPECT_EQ(idsOf(library.modules()), QStringList{ u"a1"_s });
    EXPECT_EQ(idsOf(library.lessons()), QStringList{ u"a1-l1"_s });
    EXPECT_EQ(idsOf(library.questions()), QStringList{ u"q1"_s });
    EXPECT_EQ(idsOf(library.gear()), QStringList{ u"tripod"_s });
    EXPECT_EQ(idsOf(library.timeline()), QStringList{ u"e1"_s });
    EXPECT_EQ(idsOf(library.videos()), QStringList{ u"v1"_s });
    EXPECT_EQ(idsOf(library.software()), QStringList{ u"s1"_s });
    EXPECT_EQ(idsOf(library.workflow()), QStringList{ u"w1"_s });
}

TEST(ContentLibraryLoading, TakesEmptyFilesForAnEmptyCourse)
{
    const CourseFolder folder;
    const ContentLibrary library(folder.path());
    EXPECT_EQ(library.loadErrors(), QStringList());
    EXPECT_TRUE(library.modules().isEmpty());
    EXPECT_TRUE(library.videos().isEmpty());
}

TEST(ContentLibraryLoading, ReportsEachFileOfAnEmptyFolderInTheOrderOfReading)
{
    const QTemporaryDir folder;
    const ContentLibrary library(folder.path());
    EXPECT_EQ(library.loadErrors(), sevenErrors(u"the file can't be found"_s));
    EXPECT_TRUE(library.modules().isEmpty());
    EXPECT_TRUE(library.lessons().isEmpty());
    EXPECT_TRUE(library.questions().isEmpty());
    EXPECT_TRUE(library.gear().isEmpty());
    EXPECT_TRUE(library.timeline().isEmpty());
    EXPECT_TRUE(library.videos().isEmpty());
    EXPECT_TRUE(library.software().isEmpty());
    EXPECT_TRUE(library.workflow().isEmpty());
    EXPECT_TRUE(library.gearCategories().isEmpty());
    EXPECT_TRUE(library.namedModels().isEmpty());
}

TEST(ContentLibraryLoading, ReportsEachFileOfAFolderThatIsNotThere)
{
    const QTemporaryDir folder;
    const ContentLibrary library(folder.filePath(u"absent"_s));
    EXPECT_EQ(library.loadErrors(), sevenErrors(u"the file can't be found"_s));
}

TEST(ContentLibraryLoading, ReportsEachFileIfTheFolderIsAFileItself)
{
    const CourseFolder folder;
    const ContentLibrary library(folder.path(u"course.txt"_s));
    EXPECT_EQ(library.loadErrors(), sevenErrors(u"the file can't be found"_s));
}

TEST(ContentLibraryLoading, LeavesOutOneMissingFileAndReadsTheOthers)
{
    for (const QString &name : kCourseFiles) {
        const CourseFolder folder;
        writeCourse(folder);
        folder.remove(name);
        const ContentLibrary library(folder.path());
        EXPECT_EQ(library.loadErrors(), onlyError(name, u"the file can't be found"_s));
        EXPECT_EQ(library.lessons().isEmpty(), name == u"course.txt");
        EXPECT_EQ(library.questions().isEmpty(), name == u"quizzes.txt");
        EXPECT_EQ(library.gear().isEmpty(), name == u"gear.txt");
        EXPECT_EQ(library.timeline().isEmpty(), name == u"timeline.txt");
        EXPECT_EQ(library.videos().isEmpty(), name == u"videos.tsv");
        EXPECT_EQ(library.software().isEmpty(), name == u"software.txt");
        EXPECT_EQ(library.workflow().isEmpty(), name == u"workflows.txt");
    }
}

TEST(ContentLibraryLoading, ReportsAFolderInPlaceOfAFile)
{
    const CourseFolder folder;
    folder.remove(u"gear.txt"_s);
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"gear.txt"_s));
    EXPECT_EQ(ContentLibrary(folder.path()).loadErrors(),
        onlyError(u"gear.txt"_s, u"there is a folder in its place"_s));
}

TEST(ContentLibraryLoading, ReportsAPipeInPlaceOfAFileInsteadOfWaitingForIt)
{
    const CourseFolder folder;
    folder.remove(u"quizzes.txt"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(folder.path(u"quizzes.txt"_s)).constData(), 0600), 0);
    EXPECT_EQ(ContentLibrary(folder.path()).loadErrors(),
        onlyError(u"quizzes.txt"_s, u"it isn't an ordinary file"_s));
}

TEST(ContentLibraryLoading, ReportsALinkThatLeadsNowhere)
{
    const CourseFolder folder;
    folder.remove(u"videos.tsv"_s);
    ASSERT_TRUE(QFile::link(u"absent"_s, folder.path(u"videos.tsv"_s)));
    EXPECT_EQ(ContentLibrary(folder.path()).loadErrors(),
        onlyError(u"videos.tsv"_s, u"the file can't be found"_s));
}

TEST(ContentLibraryLoading, ReportsAFileThatMayNotBeRead)
{
    const CourseFolder folder;
    ASSERT_TRUE(QFile::setPermissions(
        folder.path(), QFile::permissions(folder.path()) | QFile::ReadGroup | QFile::ExeGroup));
    ASSERT_TRUE(QFile::setPermissions(folder.path(u"timeline.txt"_s), {}));
    const OrdinaryUser user;
    EXPECT_EQ(ContentLibrary(folder.path()).loadErrors(),
        onlyError(u"timeline.txt"_s, u"the file can't be read"_s));
}

TEST(ContentLibraryLoading, ReportsEachFileOfAFolderThatMayNotBeEntered)
{
    const CourseFolder folder;
    ASSERT_TRUE(QFile::setPermissions(folder.path(), {}));
    {
        const OrdinaryUser user;
        EXPECT_EQ(ContentLibrary(folder.path()).loadErrors(),
            sevenErrors(u"its folder may not be entered"_s));
    }
    QFile::setPermissions(folder.path(), QFile::Permissions(0x7700)); // to be cleared away
}

#ifdef Q_OS_LINUX
TEST(ContentLibraryLoading, ReportsAFileThatOpensButCannotBeRead)
{
    // No memory is mapped at address 0, so that reading this file from its start fails.
    const CourseFolder folder;
    folder.remove(u"course.txt"_s);
    ASSERT_TRUE(QFile::link(u"/proc/self/mem"_s, folder.path(u"course.txt"_s)));
    EXPECT_EQ(ContentLibrary(folder.path()).loadErrors(),
        onlyError(u"course.txt"_s, u"the file can't be read"_s));
}
#endif

TEST(ContentLibraryLoading, ReportsEveryKindOfInvalidUtf8AndUsesNothingOfTheFile)
{
    const QByteArrayList brokenTexts = {
        "\x80",                 // a continuation byte without a lead byte
        "\xC0\x80",             // an overlong NUL
        "\xC1\xBF",             // an overlong letter
        "\xE0\x9F\xBF",         // overlong, in three bytes
        "\xF0\x8F\xBF\xBF",     // overlong, in four bytes
        "\xED\xA0\x80",         // the first surrogate
        "\xED\xBF\xBF",         // the last surrogate
        "\xF4\x90\x80\x80",     // U+110000
        "\xF8\x88\x80\x80\x80", // five bytes
        "\xFE", "\xFF",
        "\xC3", // cut off
        "\xE2\x80", "\xF0\x9F\x93",
        "\xC3(",                                // cut off by a letter
        "\xE9t\xE9",                            // Latin-1
        QByteArray("\xFF\xFE=\0=\0=\0 \0", 10), // UTF-16
    };
    for (const QByteArray &broken : brokenTexts) {
        const CourseFolder folder;
        writeCourse(folder);
        folder.write(u"gear.txt"_s, "=== GEAR g1\nname: A\n---\nText " + broken);
        const ContentLibrary library(folder.path());
        EXPECT_EQ(
            library.loadErrors(), onlyError(u"gear.txt"_s, u"the file isn't valid UTF-8 text"_s))
            << broken.toHex(' ').constData();
        EXPECT_TRUE(library.gear().isEmpty());
        EXPECT_EQ(library.lessons().size(), 1);
        EXPECT_EQ(library.workflow().size(), 1);
    }
}

TEST(ContentLibraryLoading, ReportsEachFileInWordsThatCanStandInAList)
{
    const QTemporaryDir parent;
    const QString folder = parent.filePath(u"a; b\nc"_s);
    ASSERT_TRUE(QDir().mkpath(folder + u"/gear.txt"));
    const QStringList errors = ContentLibrary(folder).loadErrors();
    ASSERT_EQ(errors.size(), 7);
    for (const QString &error : errors) {
        EXPECT_FALSE(error.contains(u';')) << error.toUtf8().constData();
        EXPECT_FALSE(error.contains(u'\n')) << error.toUtf8().constData();
        EXPECT_FALSE(error.endsWith(u'.')) << error.toUtf8().constData();
    }
}

TEST(ContentLibraryLoading, TakesAByteOrderMarkOffEachFile)
{
    const CourseFolder plain;
    writeCourse(plain);
    const CourseFolder marked;
    for (const auto &[name, bytes] : kCourse)
        marked.write(name, "\xEF\xBB\xBF" + bytes);
    const ContentLibrary library(marked.path());
    EXPECT_EQ(library.loadErrors(), QStringList());
    expectSameCourse(library, ContentLibrary(plain.path()));
}

TEST(ContentLibraryLoading, ReadsFilesWithEitherKindOfLineEndAlike)
{
    const CourseFolder plain;
    writeCourse(plain);
    const CourseFolder withReturns;
    for (const auto &[name, bytes] : kCourse)
        withReturns.write(name, QByteArray(bytes).replace("\n", "\r\n"));
    expectSameCourse(ContentLibrary(withReturns.path()), ContentLibrary(plain.path()));
}

TEST(ContentLibraryLoading, KeepsNulBytesInTexts)
{
    const CourseFolder folder;
    const char text[] = "=== MODULE a1\ntitle: a\0b\n=== LESSON l1\n---\n\0x\0\n";
    folder.write(u"course.txt"_s, QByteArray(text, sizeof text - 1));
    const ContentLibrary library(folder.path());
    EXPECT_EQ(library.loadErrors(), QStringList());
    ASSERT_EQ(library.modules().size(), 1);
    EXPECT_EQ(library.modules()[0].title, QStringView(u"a\0b", 3));
    ASSERT_EQ(library.lessons().size(), 1);
    EXPECT_EQ(library.lessons()[0].body, QStringView(u"\0x\0", 3));
}

TEST(ContentLibraryLoading, ReadsAFileOfFiftyMegabytesToItsEnd)
{
    const qsizetype bodySize = 25'000'000;
    const CourseFolder folder;
    folder.write(u"course.txt"_s,
        "=== LESSON one\n---\n" + QByteArray(bodySize, 'x') + "\n=== LESSON two\n---\n"
            + QByteArray("a line\n").repeated(bodySize / 7) + "the end\n");
    const ContentLibrary library(folder.path());
    EXPECT_EQ(library.loadErrors(), QStringList());
    ASSERT_EQ(idsOf(library.lessons()), (QStringList{ u"one"_s, u"two"_s }));
    EXPECT_EQ(library.lessons()[0].body.size(), bodySize);
    EXPECT_TRUE(library.lessons()[1].body.endsWith(u"a line\nthe end"_s));
}

// Modules and lessons

TEST(ContentLibraryCourse, ReadsTheFieldsOfAModule)
{
    const CourseFolder folder;
    folder.write(u"course.txt"_s,
        "=== MODULE a1\ntitle: Light\nlevel: Beginner\nsummary: About: light.\nunknown: x\n"
        "=== MODULE a2\n---\nA body that no module has.\n");
    const ContentLibrary library(folder.path());
    ASSERT_EQ(library.modules().size(), 2);
    EXPECT_EQ(library.modules()[0],
        (Module{ u"a1"_s, u"Light"_s, u"Beginner"_s, u"About: light."_s, 1 }));
    EXPECT_EQ(library.modules()[1], (Module{ u"a2"_s, u""_s, u""_s, u""_s, 2 }));
}

TEST(ContentLibraryCourse, ReadsTheFieldsOfALesson)
{
    const CourseFolder folder;
    folder.write(u"course.txt"_s,
        "=== LESSON l1\nmodule: a1\ntitle: One\nminutes: 9\ngear: tripod, lens ,,\nvideos: v1\n"
        "---\n## Heading\n\nText.\n"
        "=== LESSON l2\n");
    const ContentLibrary library(folder.path());
    ASSERT_EQ(library.lessons().size(), 2);
    EXPECT_EQ(library.lessons()[0],
        (Lesson{ u"l1"_s, u"a1"_s, u"One"_s, 9, u"## Heading\n\nText."_s, 1,
            { u"tripod"_s, u"lens"_s }, { u"v1"_s } }));
    EXPECT_EQ(library.lessons()[1], (Lesson{ u"l2"_s, u""_s, u""_s, 5, u""_s, 2, {}, {} }));
}

TEST(ContentLibraryCourse, TakesFiveMinutesUnlessALessonGivesAWholeNumber)
{
    const QList<std::pair<QByteArray, qint64>> table = {
        { "minutes: 0", 0 },
        { "minutes: +7", 7 },
        { "minutes: -3", -3 },
        { "minutes:  12\t", 12 },
        { "minutes: 9223372036854775807", std::numeric_limits<qint64>::max() },
        { "minutes: 9223372036854775808", 5 },
        { "minutes: abc", 5 },
        { "minutes: 7.5", 5 },
        { "minutes: 1 0", 5 },
        { "minutes: +", 5 },
        { "minutes:", 5 },
        { "Minutes: 9", 5 },
        { "", 5 },
        { "minutes: x\nminutes: 9", 5 },
    };
    for (const auto &[field, minutes] : table) {
        const CourseFolder folder;
        folder.write(u"course.txt"_s, "=== LESSON l1\n" + field + '\n');
        const ContentLibrary library(folder.path());
        ASSERT_EQ(library.lessons().size(), 1);
        EXPECT_EQ(library.lessons()[0].minutes, minutes) << field.constData();
    }
}

TEST(ContentLibraryCourse, NumbersModulesAndLessonsInOneSequenceThatCountsEveryRecord)
{
    const CourseFolder folder;
    folder.write(u"course.txt"_s,
        "=== MODULE a1\n=== LESSON a1-l1\n=== NOTE n\n=== \n=== LESSON a1-l2\n=== MODULE a2\n");
    const ContentLibrary library(folder.path());
    EXPECT_EQ(library.module(u"a1")->order, 1);
    EXPECT_EQ(library.lesson(u"a1-l1")->order, 2);
    EXPECT_EQ(library.lesson(u"a1-l2")->order, 5);
    EXPECT_EQ(library.module(u"a2")->order, 6);
}

TEST(ContentLibraryCourse, KeepsFileOrderAndEqualIds)
{
    const CourseFolder folder;
    folder.write(u"course.txt"_s, "=== LESSON z\n=== LESSON a\n=== LESSON z\n=== LESSON\n");
    EXPECT_EQ(idsOf(ContentLibrary(folder.path()).lessons()),
        (QStringList{ u"z"_s, u"a"_s, u"z"_s, u""_s }));
}

TEST(ContentLibraryCourse, SkipsRecordsThatBelongInAnotherFile)
{
    // Every type in every file: each file gives only what is its own.
    QByteArray everything;
    for (const char *type : { "MODULE", "LESSON", "QUESTION", "GEAR", "EVENT", "SOFTWARE", "STEP",
             "module", "MODULES" })
        everything += QByteArray("=== ") + type + " x\n";
    const CourseFolder folder;
    for (const QString &name : kCourseFiles)
        folder.write(name, everything);
    const ContentLibrary library(folder.path());
    EXPECT_EQ(library.modules().size(), 1);
    EXPECT_EQ(library.lessons().size(), 1);
    EXPECT_EQ(library.questions().size(), 1);
    EXPECT_EQ(library.gear().size(), 1);
    EXPECT_EQ(library.timeline().size(), 1);
    EXPECT_EQ(library.videos().size(), 0);
    EXPECT_EQ(library.software().size(), 1);
    EXPECT_EQ(library.workflow().size(), 1);
}

// Questions

namespace {

Question questionWith(const QByteArray &fields)
{
    const CourseFolder folder;
    folder.write(u"quizzes.txt"_s, "=== QUESTION q1\n" + fields);
    return ContentLibrary(folder.path()).questions().value(0);
}

} // namespace

TEST(ContentLibraryQuestions, HaveTheirOptionsInFileOrderAndTheIndexOfTheRightOne)
{
    const Question question = questionWith(
        "module: a1\nq: Which lets in more light?\nwrong: f/8\nwhy: The opening.\nright: f/2\n"
        "wrong: f/4\n");
    EXPECT_EQ(question,
        (Question{ u"q1"_s, u"a1"_s, u"Which lets in more light?"_s,
            { u"f/8"_s, u"f/2"_s, u"f/4"_s }, 1, u"The opening."_s }));
}

TEST(ContentLibraryQuestions, FindTheRightOptionInTheFirstAndTheLastPlace)
{
    EXPECT_EQ(questionWith("right: A\nwrong: B\nwrong: C\n").correct, 0);
    EXPECT_EQ(questionWith("wrong: A\nwrong: B\nright: C\n").correct, 2);
}

TEST(ContentLibraryQuestions, HaveNoCorrectOptionWithoutExactlyOneRightField)
{
    const Question none = questionWith("wrong: A\nwrong: B\n");
    EXPECT_EQ(none.correct, -1);
    EXPECT_EQ(none.options, (QStringList{ u"A"_s, u"B"_s }));

    const Question two = questionWith("right: A\nwrong: B\nright: C\n");
    EXPECT_EQ(two.correct, -1);
    EXPECT_EQ(two.options, (QStringList{ u"A"_s, u"B"_s, u"C"_s }));

    EXPECT_EQ(questionWith("").correct, -1);
}

TEST(ContentLibraryQuestions, KeepEmptyAndEqualOptions)
{
    const Question question = questionWith("wrong:\nright: A\nwrong: A\nRight: B\n");
    EXPECT_EQ(question.options, (QStringList{ u""_s, u"A"_s, u"A"_s }));
    EXPECT_EQ(question.correct, 1);
}

// Gear

TEST(ContentLibraryGear, ReadsTheFieldsOfAnEntry)
{
    const CourseFolder folder;
    folder.write(u"gear.txt"_s,
        "=== GEAR tripod\nname: Tripod\ncategory: Support\ndiagram: tripod\naka: three legs\n"
        "see: monopod, head\nmodel: One | travel | 1.2 kg | https://www.example.com | 2026-10-24\n"
        "model: Two\n---\nFirst.\n\nSecond.\n"
        "=== GEAR empty\n");
    const ContentLibrary library(folder.path());
    ASSERT_EQ(library.gear().size(), 2);
    const GearModel one{ u"One"_s, u"travel"_s, u"1.2 kg"_s, u"https://www.example.com"_s,
        u"2026-10-24"_s };
    const GearModel two{ u"Two"_s, u""_s, u""_s, u""_s, u""_s };
    EXPECT_EQ(library.gear()[0],
        (GearEntry{ u"tripod"_s, u"Tripod"_s, u"Support"_s, u"tripod"_s, u"three legs"_s,
            u"First.\n\nSecond."_s, { one, two }, { u"monopod"_s, u"head"_s } }));
    EXPECT_EQ(
        library.gear()[1], (GearEntry{ u"empty"_s, u""_s, u""_s, u""_s, u""_s, u""_s, {}, {} }));
}

TEST(ContentLibraryGear, FillsTheSlotsOfAModelByPlace)
{
    const QList<std::pair<QByteArray, GearModel>> table = {
        { "A|B", { u"A"_s, u"B"_s, u""_s, u""_s, u""_s } },
        { "A", { u"A"_s, u""_s, u""_s, u""_s, u""_s } },
        { "", { u""_s, u""_s, u""_s, u""_s, u""_s } },
        { "A||C", { u"A"_s, u""_s, u"C"_s, u""_s, u""_s } },
        { "A|B|C|D|E", { u"A"_s, u"B"_s, u"C"_s, u"D"_s, u"E"_s } },
        { "A|B|C|D|E|F|G", { u"A"_s, u"B"_s, u"C"_s, u"D"_s, u"E"_s } },
    };
    for (const auto &[value, model] : table) {
        const CourseFolder folder;
        folder.write(u"gear.txt"_s, "=== GEAR g\nmodel: " + value + '\n');
        EXPECT_EQ(ContentLibrary(folder.path()).namedModels(), QList<GearModel>{ model })
            << value.constData();
    }
}

TEST(ContentLibraryGear, NamesEachCategoryOnceInTheOrderOfFirstAppearance)
{
    const CourseFolder folder;
    folder.write(u"gear.txt"_s,
        "=== GEAR a\ncategory: Support\n=== GEAR b\ncategory: Lenses\n=== GEAR c\n"
        "=== GEAR d\ncategory: Support\n=== GEAR e\ncategory: lenses\n");
    EXPECT_EQ(ContentLibrary(folder.path()).gearCategories(),
        (QStringList{ u"Support"_s, u"Lenses"_s, u""_s, u"lenses"_s }));
}

TEST(ContentLibraryGear, JoinsTheModelsOfAllEntriesInOrderWithRepetitions)
{
    const CourseFolder folder;
    folder.write(
        u"gear.txt"_s, "=== GEAR a\nmodel: One\nmodel: Two\n=== GEAR b\n=== GEAR c\nmodel: One\n");
    QStringList names;
    for (const GearModel &model : ContentLibrary(folder.path()).namedModels())
        names.append(model.name);
    EXPECT_EQ(names, (QStringList{ u"One"_s, u"Two"_s, u"One"_s }));
}

// History

TEST(ContentLibraryTimeline, ReadsTheFieldsOfAnEvent)
{
    const CourseFolder folder;
    folder.write(u"timeline.txt"_s,
        "=== EVENT e1\nyear: 1839\ndate: 19 August 1839\nera: Early\ntitle: A gift\n"
        "source: Title | https://www.example.com | 2026-10-24 | more\nsource: Other\n---\nText.\n");
    const ContentLibrary library(folder.path());
    ASSERT_EQ(library.timeline().size(), 1);
    const Citation full{ u"Title"_s, u"https://www.example.com"_s, u"2026-10-24"_s };
    const Citation titleOnly{ u"Other"_s, u""_s, u""_s };
    EXPECT_EQ(library.timeline()[0],
        (TimelineEvent{ u"e1"_s, 1839, u"19 August 1839"_s, u"Early"_s, u"A gift"_s, u"Text."_s,
            { full, titleOnly } }));
}

TEST(ContentLibraryTimeline, SortsEventsByYear)
{
    const CourseFolder folder;
    folder.write(u"timeline.txt"_s,
        "=== EVENT a\nyear: 1888\n=== EVENT b\nyear: 1839\n=== EVENT c\nyear: -350\n");
    EXPECT_EQ(
        idsOf(ContentLibrary(folder.path()).timeline()), (QStringList{ u"c"_s, u"b"_s, u"a"_s }));
}

TEST(ContentLibraryTimeline, KeepsEventsOfOneYearInFileOrder)
{
    // Many of them: sorts that lose the order of equals keep that of a few.
    QByteArray events;
    QStringList expected;
    for (const char *year : { "1839", "1888" }) {
        for (int i = 0; i < 50; ++i)
            expected.append(QString::fromLatin1(year) + u'-' + QString::number(i));
    }
    for (int i = 0; i < 50; ++i) {
        const QByteArray number = QByteArray::number(i);
        events += "=== EVENT 1888-" + number + "\nyear: 1888\n";
        events += "=== EVENT 1839-" + number + "\nyear: 1839\n";
    }
    const CourseFolder folder;
    folder.write(u"timeline.txt"_s, events);
    EXPECT_EQ(idsOf(ContentLibrary(folder.path()).timeline()), expected);
}

TEST(ContentLibraryTimeline, TakesYearZeroForAnEventWithoutAWholeNumber)
{
    const CourseFolder folder;
    folder.write(u"timeline.txt"_s,
        "=== EVENT a\nyear: 1839\n=== EVENT b\nyear: 1839a\n=== EVENT c\n=== EVENT d\nyear:\n");
    const ContentLibrary library(folder.path());
    ASSERT_EQ(idsOf(library.timeline()), (QStringList{ u"b"_s, u"c"_s, u"d"_s, u"a"_s }));
    EXPECT_EQ(library.timeline()[0].year, 0);
    EXPECT_EQ(library.timeline()[3].year, 1839);
}

// Videos

namespace {

const QByteArray kHeadings = "id\ttitle\tchannel\tmodule\ttopic\tseconds\tpublished\tchecked\n";

QList<Video> videosIn(const QByteArray &table)
{
    const CourseFolder folder;
    folder.write(u"videos.tsv"_s, table);
    return ContentLibrary(folder.path()).videos();
}

} // namespace

TEST(ContentLibraryVideos, HaveTheEightColumnsOfTheirLine)
{
    const QList<Video> videos = videosIn(
        kHeadings + "dQw4\tTitle: one\tChannel\ta1\tTopic\t612\t2021-04-02\t2026-10-24\n");
    ASSERT_EQ(videos.size(), 1);
    EXPECT_EQ(videos[0],
        (Video{ u"dQw4"_s, u"Title: one"_s, u"Channel"_s, u"a1"_s, u"Topic"_s, 612, u"2021-04-02"_s,
            u"2026-10-24"_s }));
}

TEST(ContentLibraryVideos, AreNoneInATableOfAtMostOneLine)
{
    EXPECT_TRUE(videosIn("").isEmpty());
    EXPECT_TRUE(videosIn(kHeadings).isEmpty());
    EXPECT_TRUE(videosIn(kHeadings.chopped(1)).isEmpty());
    EXPECT_TRUE(videosIn("v1\tb\tc\td\te\t6\tg\th").isEmpty());
}

TEST(ContentLibraryVideos, StartInTheSecondLineWhateverTheFirstSays)
{
    EXPECT_EQ(idsOf(videosIn("v1\tb\tc\td\te\t6\tg\th\nv2\tb\tc\td\te\t6\tg\th")),
        QStringList{ u"v2"_s });
    EXPECT_EQ(idsOf(videosIn("\nv2\tb\tc\td\te\t6\tg\th")), QStringList{ u"v2"_s });
}

TEST(ContentLibraryVideos, NeedEightColumnsAndAnId)
{
    const QList<Video> videos = videosIn(kHeadings
        + "seven\tb\tc\td\te\t6\tg\n"
          "seven-and-return\tb\tc\td\te\t6\tg\r\n"
          "\tb\tc\td\te\t6\tg\th\n"
          "\n"
          "eight\t\t\t\t\t\t\t\n"
          " \tb\tc\td\te\t6\tg\th\n"
          "nine\tb\tc\td\te\t6\tg\th\ti\n"
          "# comment\tb\tc\td\te\t6\tg\th\n");
    EXPECT_EQ(idsOf(videos), (QStringList{ u"eight"_s, u" "_s, u"nine"_s, u"# comment"_s }));
    EXPECT_EQ(videos[0], (Video{ u"eight"_s, u""_s, u""_s, u""_s, u""_s, 0, u""_s, u""_s }));
    EXPECT_EQ(videos[2].checked, u"h");
}

TEST(ContentLibraryVideos, TrimTheirLastColumnAlone)
{
    const QList<Video> videos = videosIn(kHeadings
        + " v1 \t b \t c \t d \t e \t 6 \t g \t 2026-10-24 \r\n"
          "v2\tb\tc\td\te\t6\tg\t2026-10-24\r\r\n"
          "v3\tb\tc\td\te\t6\tg\t2026-10-24\r\ti\r\n"
          "v\r4\tb\tc\td\te\t6\tg\t2026-10-24");
    ASSERT_EQ(videos.size(), 4);
    EXPECT_EQ(videos[0],
        (Video{ u" v1 "_s, u" b "_s, u" c "_s, u" d "_s, u" e "_s, 0, u" g "_s, u"2026-10-24"_s }));
    EXPECT_EQ(videos[1].checked, u"2026-10-24");
    EXPECT_EQ(videos[2].checked, u"2026-10-24");
    EXPECT_EQ(videos[3].id, u"v\r4");
}

TEST(ContentLibraryVideos, LastZeroSecondsUnlessTheColumnIsAWholeNumber)
{
    const QList<std::pair<QByteArray, qint64>> table = {
        { "612", 612 },
        { "+612", 612 },
        { "-5", -5 },
        { "", 0 },
        { "10:12", 0 },
        { "612 ", 0 },
        { "99999999999999999999", 0 },
    };
    for (const auto &[text, seconds] : table) {
        const QList<Video> videos = videosIn(kHeadings + "v1\tb\tc\td\te\t" + text + "\tg\th\n");
        ASSERT_EQ(videos.size(), 1);
        EXPECT_EQ(videos[0].seconds, seconds) << text.constData();
    }
}

// Software and workflow

TEST(ContentLibrarySoftware, ReadsTheFieldsOfARecord)
{
    const CourseFolder folder;
    folder.write(u"software.txt"_s,
        "=== SOFTWARE s1\nname: Name\nkind: Raw converter\nmaker: Maker\n"
        "url: https://www.example.com\nplatforms: Linux, Windows\n---\nText.\n");
    const ContentLibrary library(folder.path());
    ASSERT_EQ(library.software().size(), 1);
    EXPECT_EQ(library.software()[0],
        (Software{ u"s1"_s, u"Name"_s, u"Raw converter"_s, u"Maker"_s, u"https://www.example.com"_s,
            u"Linux, Windows"_s, u"Text."_s }));
}

TEST(ContentLibraryWorkflow, NumbersItsStepsFromOneAndCountsNothingElse)
{
    const CourseFolder folder;
    folder.write(u"workflows.txt"_s,
        "=== NOTE n\n=== STEP w1\nstage: Expose\nfilm: On film.\ndigital: On a sensor.\n"
        "=== NOTE n\n=== STEP w2\n");
    const ContentLibrary library(folder.path());
    ASSERT_EQ(library.workflow().size(), 2);
    EXPECT_EQ(library.workflow()[0],
        (WorkflowStep{ u"w1"_s, 1, u"Expose"_s, u"On film."_s, u"On a sensor."_s }));
    EXPECT_EQ(library.workflow()[1], (WorkflowStep{ u"w2"_s, 2, u""_s, u""_s, u""_s }));
}

// Look-ups

namespace {

const QByteArray kTwoModules
    = "=== MODULE a\ntitle: A\n=== LESSON l1\nmodule: b\ntitle: One\n"
      "=== MODULE b\ntitle: B\n=== LESSON l2\nmodule: a\ntitle: Two\n"
      "=== MODULE a\ntitle: Another A\n=== LESSON l1\nmodule: b\ntitle: Another One\n";

} // namespace

TEST(ContentLibraryLookup, FindsTheFirstWithAnId)
{
    const CourseFolder folder;
    folder.write(u"course.txt"_s, kTwoModules);
    folder.write(u"gear.txt"_s, "=== GEAR g\nname: One\n=== GEAR g\nname: Two\n");
    folder.write(u"videos.tsv"_s, kHeadings + "v\tOne\t\t\t\t\t\t\nv\tTwo\t\t\t\t\t\t\n");
    const ContentLibrary library(folder.path());
    EXPECT_EQ(library.module(u"a"), &library.modules()[0]);
    EXPECT_EQ(library.module(u"b"), &library.modules()[1]);
    EXPECT_EQ(library.lesson(u"l1"), &library.lessons()[0]);
    EXPECT_EQ(library.lesson(u"l2"), &library.lessons()[1]);
    EXPECT_EQ(library.gearEntry(u"g"), &library.gear()[0]);
    EXPECT_EQ(library.video(u"v"), &library.videos()[0]);
}

TEST(ContentLibraryLookup, FindsNothingForAnIdThatIsNotThere)
{
    const CourseFolder folder;
    writeCourse(folder);
    const ContentLibrary library(folder.path());
    for (const QStringView id : { u"absent"_s, u""_s, u"A1"_s, u"TRIPOD"_s, u"a1 "_s }) {
        EXPECT_EQ(library.module(id), nullptr);
        EXPECT_EQ(library.lesson(id), nullptr);
        EXPECT_EQ(library.gearEntry(id), nullptr);
        EXPECT_EQ(library.video(id), nullptr);
    }
}

TEST(ContentLibraryLookup, ListsTheLessonsAndQuestionsOfAModuleInOrder)
{
    const CourseFolder folder;
    folder.write(u"course.txt"_s, kTwoModules);
    folder.write(u"quizzes.txt"_s,
        "=== QUESTION q3\nmodule: a\n=== QUESTION q2\nmodule: b\n=== QUESTION q1\nmodule: a\n");
    const ContentLibrary library(folder.path());
    EXPECT_EQ(idsOf(library.lessonsIn(u"a")), QStringList{ u"l2"_s });
    EXPECT_EQ(
        library.lessonsIn(u"b"), (QList<Lesson>{ library.lessons()[0], library.lessons()[2] }));
    EXPECT_EQ(idsOf(library.questionsIn(u"a")), (QStringList{ u"q3"_s, u"q1"_s }));
    EXPECT_TRUE(library.lessonsIn(u"A").isEmpty());
    EXPECT_TRUE(library.questionsIn(u"absent").isEmpty());
}

// The shared library

TEST(SharedContentLibrary, IsReadFromTheContentFolderOnceAndReplacedOnDemand)
{
    const CourseFolder folder;
    folder.write(u"course.txt"_s, "=== MODULE from-the-folder\n");
    const CourseFolder other;
    other.write(u"course.txt"_s, "=== MODULE from-elsewhere\n");
    const EnvironmentVariable variable("HV_CONTENT", folder.path());

    // Given no library, the first use reads the content folder, and the second finds it read.
    ContentLibrary::setShared(nullptr);
    const ContentLibrary &library = ContentLibrary::shared();
    EXPECT_EQ(idsOf(library.modules()), QStringList{ u"from-the-folder"_s });
    EXPECT_EQ(&ContentLibrary::shared(), &library);

    // When another one takes its place, it is the shared one.
    ContentLibrary::setShared(std::make_unique<ContentLibrary>(other.path()));
    EXPECT_EQ(idsOf(ContentLibrary::shared().modules()), QStringList{ u"from-elsewhere"_s });

    // Then taking that away has the content folder read anew.
    folder.write(u"course.txt"_s, "=== MODULE rewritten\n");
    ContentLibrary::setShared(nullptr);
    EXPECT_EQ(idsOf(ContentLibrary::shared().modules()), QStringList{ u"rewritten"_s });

    ContentLibrary::setShared(nullptr);
}
