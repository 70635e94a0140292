// The self-test, run as the program itself.

#include "selfcheckworld.h"
#include "store/storetesting.h"
#include "store/userstore.h"
#include "support/program.h"
#include "support/qtprinters.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <optional>

using namespace Qt::StringLiterals;
using namespace StoreTesting;

namespace {

constexpr qsizetype kChecks = 112;

// A run that has ended.
struct Checked {
    std::optional<int> status;
    QStringList lines;
    QString complaints;

    explicit Checked(const Home &home, const QStringList &arguments = { u"--selftest"_s })
    {
        Program program(home, arguments);
        status = program.status();
        lines = program.output().split(u'\n');
        complaints = program.complaints();
    }

    [[nodiscard]] QStringList beginningWith(const QString &word) const
    {
        QStringList found;
        for (const QString &line : lines) {
            if (line.startsWith(word))
                found.append(line);
        }
        return found;
    }

    /// The output without the time in its first line.
    [[nodiscard]] QStringList timeless() const
    {
        QStringList rest = lines;
        rest[0].replace(QRegularExpression(u"\\d{4}-\\S+"_s), u"TIME"_s);
        return rest;
    }
};

class SelfTest : public ::testing::Test
{
protected:
    SelfTest() { home.environment.insert(u"HV_CONTENT"_s, QStringLiteral(HV_TEST_COURSE)); }

    static void TearDownTestSuite()
    {
        plainRun.reset();
        plainHome.reset();
    }

    // The run on the installed course in surroundings that nobody has changed.
    static const Checked &plain()
    {
        if (!plainRun) {
            plainHome = std::make_unique<Home>();
            plainHome->environment.insert(u"HV_CONTENT"_s, QStringLiteral(HV_TEST_COURSE));
            plainRun = std::make_unique<Checked>(*plainHome);
        }
        return *plainRun;
    }

    // The run in the test's own home tells the same, but for the time.
    void expectTheSameAsEverywhere() const
    {
        const Checked run(home);
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.timeless(), plain().timeless());
    }

    static inline std::unique_ptr<Home> plainHome;
    static inline std::unique_ptr<Checked> plainRun;
    Home home;
};

// A user who has a progress file and has chosen theme and zoom.
void makeUser(const QString &progressFile, const QString &preferencesFile)
{
    ASSERT_TRUE(QDir().mkpath(QFileInfo(progressFile).path()));
    UserStore(QUrl::fromLocalFile(progressFile)).setComplete(u"m01.1"_s, true);
    ASSERT_TRUE(QDir().mkpath(QFileInfo(preferencesFile).path()));
    writeFile(preferencesFile, R"({ "crvn.theme": "rose-gold", "crvn.zoom": 1.5 })");
}

} // namespace

// What it tells

TEST_F(SelfTest, PassesOnTheInstalledCourse)
{
    EXPECT_EQ(plain().status, 0);
    EXPECT_EQ(plain().beginningWith(u"FAIL"_s), QStringList());
    EXPECT_EQ(plain().beginningWith(u"PASS  "_s).size(), kChecks);
    EXPECT_EQ(plain().lines.last(2),
        (QStringList{ u"RESULT: %1 passed, 0 failed — ALL CHECKS PASSED"_s.arg(kChecks), u""_s }));
    EXPECT_EQ(plain().lines[plain().lines.size() - 3], u""_s);
    EXPECT_EQ(plain().complaints, u""_s);
}

TEST_F(SelfTest, RunsTheGroupsInTheirOrder)
{
    EXPECT_EQ(plain().beginningWith(u"=="_s),
        (QStringList{
            u"== Course content: everything loads, every quiz has one right answer, every entry "
            "has a diagram"_s,
            u"== Exposure math: EV, equivalent exposures, stops between f-numbers (within 0.05)"_s,
            u"== Exposure Lab preview: the picture changes the way the settings say"_s,
            u"== Lens Lab: f/1.4, f/1.8, f/2.8 and f/5.6 compared with real math"_s,
            u"== Encyclopedia search (FTS5): \"tripod\" finds the tripod and its diagram"_s,
            u"== Progress, quiz scores, bookmarks and notes survive quitting and reopening"_s,
            u"== Look: themes and zoom; Help; credits"_s,
            u"== Video library: every link well formed; embedded player; offline message; Open in "
            "YouTube"_s,
        }));
}

TEST_F(SelfTest, BeginsWithItsNameAndTheTimeInUtc)
{
    const QRegularExpression form(
        u"^CRVN Halvorin self-test — (\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\dZ)$"_s);
    const QDateTime before = QDateTime::currentDateTimeUtc().addSecs(-1);
    const Checked run(home);
    const QRegularExpressionMatch match = form.match(run.lines.first());
    ASSERT_TRUE(match.hasMatch()) << qPrintable(run.lines.first());
    const QDateTime told = QDateTime::fromString(match.captured(1), Qt::ISODate);
    EXPECT_GE(told, before);
    EXPECT_LE(told, QDateTime::currentDateTimeUtc());
}

TEST_F(SelfTest, TellsTheSameInEveryLanguageAndOnEveryDesktop)
{
    home.environment.insert(u"LC_ALL"_s, u"de_DE.UTF-8"_s);
    home.environment.insert(u"LANG"_s, u"de_DE.UTF-8"_s);
    home.environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    home.environment.insert(u"DISPLAY"_s, u"nonsense:99"_s);
    home.environment.insert(u"QT_SCALE_FACTOR"_s, u"2"_s);
    home.environment.insert(u"QT_QUICK_BACKEND"_s, u"nonsense"_s);
    expectTheSameAsEverywhere();
}

TEST_F(SelfTest, TellsTheSameInPlainC)
{
    home.environment.insert(u"LC_ALL"_s, u"C"_s);
    home.environment.remove(u"QT_QPA_PLATFORM"_s);
    expectTheSameAsEverywhere();
}

// Mutations

TEST_F(SelfTest, MarksARunWithMutationsInItsFirstLineAndNowhereElse)
{
    for (const QString &names : { u"a, b,,"_s, u","_s, u" "_s }) {
        home.environment.insert(u"HV_SELFTEST_MUTATE"_s, names);
        const Checked run(home);
        EXPECT_EQ(run.status, 0);
        QStringList told = run.timeless();
        EXPECT_EQ(told.takeFirst(),
            u"CRVN Halvorin self-test — TIME — MUTATION \"%1\": failures are EXPECTED"_s.arg(
                names));
        EXPECT_EQ(told, plain().timeless().sliced(1));
    }
}

TEST_F(SelfTest, AnEmptyMutationIsNone)
{
    home.environment.insert(u"HV_SELFTEST_MUTATE"_s, u""_s);
    expectTheSameAsEverywhere();
}

// Which arguments ask for it

TEST_F(SelfTest, IsFoundBehindOtherArguments)
{
    const Checked run(home, { u"--unknown"_s, u"--help"_s, u"--hv-child-write"_s });
    EXPECT_TRUE(run.lines.first().startsWith("Usage: "_L1)) << "without the option";
    const Checked selfTest(
        home, { u"--unknown"_s, u"--help"_s, u"--selftest"_s, u"--hv-child-write"_s });
    EXPECT_EQ(selfTest.timeless(), plain().timeless());
}

TEST_F(SelfTest, MakesWayForPictures)
{
    const QString pictures = home.path(u"pictures"_s);
    const Checked run(home, { u"--selftest"_s, u"--hv-snapshot"_s, pictures });
    EXPECT_EQ(run.status, 0);
    EXPECT_TRUE(run.lines.first().startsWith("wrote "_L1));
}

// What it leaves alone

TEST_F(SelfTest, LeavesNoTrace)
{
    const Fingerprint before = home.fingerprint();
    EXPECT_EQ(Checked(home).status, 0);
    EXPECT_EQ(home.fingerprint(), before);
}

TEST_F(SelfTest, LeavesTheUsersProgressAndPreferencesAsTheyAre)
{
    makeUser(home.progressFile(), home.preferencesFile());
    const Fingerprint before = home.fingerprint();
    expectTheSameAsEverywhere();
    EXPECT_EQ(home.fingerprint(), before);
}

TEST_F(SelfTest, LeavesAHomeWithItsUsualFoldersAsItIs)
{
    // given
    for (const QString &variable :
        { u"XDG_DATA_HOME"_s, u"XDG_CONFIG_HOME"_s, u"XDG_CACHE_HOME"_s })
        home.environment.remove(variable);
    const QString progress = home.path(u".local/share/CRVN Halvorin/My Progress.sqlite"_s);
    makeUser(progress, home.path(u".config/CRVN Halvorin/CRVN Halvorin.json"_s));
    ASSERT_TRUE(QDir().mkpath(home.path(u".cache"_s)));
    const Fingerprint before = home.fingerprint();
    // when, then
    const Folder elsewhere;
    for (const QStringList &mode : { QStringList{ u"--selftest"_s },
             QStringList{ u"--hv-child-write"_s, elsewhere.path(u"other.sqlite"_s) },
             QStringList{ u"--hv-child-read"_s, elsewhere.path(u"other.sqlite"_s) },
             QStringList{ u"--hv-snapshot"_s, elsewhere.path(u"pictures"_s) } }) {
        EXPECT_EQ(Checked(home, mode).status, 0) << qPrintable(mode.first());
        EXPECT_EQ(home.fingerprint(), before) << qPrintable(mode.first());
    }
}

TEST_F(SelfTest, LeavesTheProgressFileThatTheEnvironmentNamesAsItIs)
{
    const QString mine = home.path(u"elsewhere/mine.sqlite"_s);
    UserStore(QUrl::fromLocalFile(mine)).setComplete(u"m01.1"_s, true);
    home.environment.insert(u"HV_DB_PATH"_s, mine);
    const Fingerprint before = home.fingerprint();
    EXPECT_EQ(Checked(home).status, 0);
    EXPECT_EQ(home.fingerprint(), before);
}

TEST_F(SelfTest, RunsBesideAnOpenCamera)
{
    Program camera(home);
    ASSERT_TRUE(camera.waitUntilItAnswers());
    const Fingerprint before = fingerprint(home.dataFolder());
    expectTheSameAsEverywhere();
    EXPECT_EQ(fingerprint(home.dataFolder()), before);
    EXPECT_TRUE(camera.isRunning());
}

// When something is wrong

TEST_F(SelfTest, FailsWithoutACourseInTheChecksThatNeedOne)
{
    const QString empty = home.path(u"empty"_s);
    ASSERT_TRUE(QDir().mkpath(empty));
    home.environment.insert(u"HV_CONTENT"_s, empty);
    const Checked run(home);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.beginningWith(u"FAIL"_s),
        (QStringList{
            u"FAIL  content files check clean: course.txt: the file can't be found | quizzes.txt: "
            "the file can't be found | gear.txt: the file can't be found | timeline.txt: the file "
            "can't be found | videos.tsv: the file can't be found | software.txt: the file can't "
            "be found | workflows.txt: the file can't be found"_s,
            u"FAIL  0 modules (12 or more)"_s,
            u"FAIL  0 lessons (60 or more)"_s,
            u"FAIL  0 encyclopedia entries (150 or more)"_s,
            u"FAIL  0 named example models, each with the maker's link and the date checked"_s,
            u"FAIL  0 history events, every one cited"_s,
            u"FAIL  0 videos (40 or more)"_s,
            u"FAIL  0 software/plug-in entries and a 0-step film vs digital workflow"_s,
            u"FAIL  the f-number lessons explain exposure, depth of field, focal length and sensor "
            "size separately"_s,
            u"FAIL  \"tripod\" → first result is the Tripod entry ()"_s,
            u"FAIL  typing part of a word (\"tripo\") already finds it"_s,
            u"FAIL  search ignores capitals"_s,
            u"FAIL  \"aperture\" finds several lessons"_s,
            u"FAIL  \"Kodak\" finds history events"_s,
            u"FAIL  \"Lightroom\" finds the software entry"_s,
            u"FAIL  the tripod entry uses the tripod diagram and lists 0 models for different "
            "uses"_s,
            u"FAIL  tripod entry exists"_s,
            u"FAIL  the tripod diagram renders"_s,
            u"FAIL  the tripod diagram is drawn (0 lit pixels of 104000)"_s,
            u"FAIL  videos cover 0 modules"_s,
            u"FAIL  the player uses the official YouTube embed page with an https referrer"_s,
            u"FAIL  offline: nothing opens and the \"needs internet\" message shows"_s,
            u"FAIL  online: Open in YouTube opens the watch page"_s,
        }));
    EXPECT_EQ(run.beginningWith(u"PASS"_s).size() + run.beginningWith(u"FAIL"_s).size(), kChecks);
    EXPECT_EQ(run.lines[run.lines.size() - 2], u"RESULT: %1 passed, 23 failed"_s.arg(kChecks - 23));
    EXPECT_EQ(run.complaints, u""_s);
}

TEST_F(SelfTest, FailsInOneCheckWithOneMistake)
{
    TestCourse::Files files = installedCourseFiles();
    files[u"quizzes.txt"_s]
        += "\n=== QUESTION x\nmodule: m01\nq: What?\nwrong: A\nright: B\nwrong: C\n";
    TestCourse::write(home.path(u"course"_s), files);
    home.environment.insert(u"HV_CONTENT"_s, home.path(u"course"_s));
    const Checked run(home);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.beginningWith(u"FAIL"_s),
        QStringList(u"FAIL  content files check clean: question x: no explanation"_s));
    EXPECT_EQ(run.lines[run.lines.size() - 2], u"RESULT: %1 passed, 1 failed"_s.arg(kChecks - 1));
}

TEST_F(SelfTest, TellsThatItsChildrenHadNoPlaceForTheirFile)
{
    // given: a file where the temporary folder should be
    home.environment.insert(u"TMPDIR"_s, home.path(u"no folder"_s));
    writeFile(home.path(u"no folder"_s), "a file");
    // when
    const Checked run(home);
    // then
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.beginningWith(u"FAIL"_s),
        (QStringList{
            u"FAIL  two separate app processes wrote and then read the file (exit 3, 3)"_s,
            u"FAIL  everything read back exactly as written"_s,
            u"FAIL  2 finished lessons, 1 quiz score, 1 bookmark, 2 notes after relaunch ()"_s,
            u"FAIL  note text with accents and symbols kept exactly"_s,
        }));
}
