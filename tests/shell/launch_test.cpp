// The program as a person starts and ends it.

#include "shell/info.h"
#include "store/storetesting.h"
#include "store/userstore.h"
#include "support/program.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <csignal>
#include <string>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace StoreTesting;

namespace {

class Launch : public ::testing::Test
{
protected:
    // A program whose window is up, asked to end as a desktop does at log-out.
    void expectToRunAndEnd(Program &program) const
    {
        ASSERT_TRUE(program.waitUntilItAnswers()) << qPrintable(program.complaints());
        program.send(SIGTERM);
        EXPECT_EQ(program.status(), 0);
    }

    [[nodiscard]] QStringList stopgaps() const
    {
        return QDir(home.dataFolder()).entryList({ u"My Progress (opened *).sqlite"_s });
    }

    Home home;
};

class LaunchEndedBySignal : public Launch, public ::testing::WithParamInterface<int>
{
};

} // namespace

// The umask that the program is started with.
class LaunchUnderUmask : public Launch, public ::testing::WithParamInterface<int>
{
protected:
    // Runs the program until it has a window, looks at all that it has made, and ends it.
    void runAndLook()
    {
        Program program(home, {}, [mask = GetParam()] { ::umask(mode_t(mask)); });
        ASSERT_TRUE(program.waitUntilItAnswers()) << qPrintable(program.complaints());
        expectEverythingForTheOwnerOnly();
        program.send(SIGTERM);
        EXPECT_EQ(program.status(), 0);
        expectEverythingForTheOwnerOnly();
        EXPECT_TRUE(QFileInfo(home.progressFile()).isFile());
    }

    void expectEverythingForTheOwnerOnly() const
    {
        constexpr auto everything
            = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
        for (const QString &place : { u"data"_s, u"config"_s, u"run"_s, u"tmp"_s }) {
            QDirIterator entries(home.path(place), everything, QDirIterator::Subdirectories);
            while (entries.hasNext()) {
                const QString entry = entries.next();
                EXPECT_EQ(QFile::permissions(entry) & kOthers, QFile::Permissions())
                    << qPrintable(entry);
            }
        }
    }

    static constexpr QFile::Permissions kOthers = QFile::Permissions(0x0077);
};

// Answers on standard output

TEST_F(Launch, HelpNamesEveryOptionAndVariable)
{
    Program program(home, { u"--help"_s });
    EXPECT_EQ(program.status(), 0);
    const QString help = program.output();
    for (const QString &word : { u"--help"_s, u"--version"_s, u"--continue"_s, u"--screen NAME"_s,
             u"--selftest"_s, u"--hv-snapshot FOLDER"_s, u"--diagram-sheet FILE"_s, u"HV_CONTENT"_s,
             u"HV_DB_PATH"_s })
        EXPECT_TRUE(help.contains(word)) << qPrintable(word);
    EXPECT_TRUE(help.endsWith(u'\n'));
    EXPECT_EQ(program.complaints(), u""_s);
}

TEST_F(Launch, VersionIsOneLine)
{
    Program program(home, { u"--version"_s });
    EXPECT_EQ(program.status(), 0);
    EXPECT_EQ(program.output(), QString(u"CRVN Halvorin "_s + HVInfo::version() + u'\n'));
    EXPECT_EQ(program.complaints(), u""_s);
}

TEST_F(Launch, HelpAndVersionNeedNoDisplayAndLeaveNoTrace)
{
    home.environment.remove(u"QT_QPA_PLATFORM"_s);
    const Fingerprint before = home.fingerprint();
    for (const QString &option : { u"--help"_s, u"--version"_s })
        EXPECT_EQ(Program(home, { option }).status(), 0) << qPrintable(option);
    EXPECT_EQ(home.fingerprint(), before);
}

TEST_F(Launch, HelpIsFoundBehindOtherArguments)
{
    Program program(home, { u"--unknown"_s, u"lesson.txt"_s, u"--help"_s });
    EXPECT_EQ(program.status(), 0);
    EXPECT_TRUE(program.output().startsWith("Usage: "_L1));
}

// The camera

TEST_F(Launch, OpensTheCameraAndPrintsNothing)
{
    Program program(home);
    expectToRunAndEnd(program);
    EXPECT_EQ(program.output(), u""_s);
    // The offscreen display remarks on the call that waited for the window.
    EXPECT_EQ(program.complaints().remove(u"This plugin does not support raise()\n"_s), u""_s);
    EXPECT_TRUE(QFileInfo(home.progressFile()).isFile());
}

TEST_F(Launch, UnknownArgumentsArePassedOver)
{
    Program program(home,
        { u"--unknown"_s, u"-h"_s, u"lesson.txt"_s, u""_s, u"--HELP"_s, u"--version=2"_s,
            u"--selftest=1"_s, u"--hv-snapshot=pictures"_s });
    expectToRunAndEnd(program);
    EXPECT_EQ(program.output(), u""_s);
    EXPECT_FALSE(QFileInfo::exists(home.path(u"pictures"_s)));
}

TEST_F(Launch, ASnapshotWithoutAFolderOpensTheCamera)
{
    Program program(home, { u"--hv-snapshot"_s });
    expectToRunAndEnd(program);
    EXPECT_EQ(program.output(), u""_s);
}

TEST_F(Launch, ADiagramSheetWithoutAFileSaysHowItIsAskedFor)
{
    const Fingerprint before = home.fingerprint();
    Program program(home, { u"--diagram-sheet"_s });
    EXPECT_EQ(program.status(), 2);
    EXPECT_EQ(program.output(), u""_s);
    EXPECT_EQ(program.complaints(), u"Usage: halvorin --diagram-sheet FILE\n"_s);
    EXPECT_EQ(home.fingerprint(), before);
}

TEST_F(Launch, AScreenThatThereIsNotSaysWhichThereAre)
{
    const Fingerprint before = home.fingerprint();
    Program program(home, { u"--screen"_s, u"darkroom"_s });
    EXPECT_EQ(program.status(), 2);
    EXPECT_EQ(program.output(), u""_s);
    EXPECT_EQ(program.complaints(),
        u"Usage: halvorin --screen home|course|exposure|lens|history|gear|workflow|videos|notes\n"_s);
    EXPECT_EQ(home.fingerprint(), before);
}

TEST_F(Launch, TheCameraOpensWithoutACourse)
{
    home.environment.insert(u"HV_CONTENT"_s, home.path(u"no course"_s));
    Program program(home);
    expectToRunAndEnd(program);
}

// One camera at a time

TEST_F(Launch, ASecondLaunchEndsSilentlyAndTheFirstRunsOn)
{
    // given
    Program first(home);
    ASSERT_TRUE(first.waitUntilItAnswers());
    // when
    Program second(home);
    // then
    EXPECT_EQ(second.status(), 0);
    EXPECT_EQ(second.output(), u""_s);
    EXPECT_EQ(second.complaints(), u""_s);
    expectToRunAndEnd(first);
}

TEST_F(Launch, ASecondLaunchWithAWishEndsAsSilently)
{
    Program first(home);
    ASSERT_TRUE(first.waitUntilItAnswers());
    for (const QStringList &wish :
        { QStringList{ u"--continue"_s }, QStringList{ u"--screen"_s, u"exposure"_s } }) {
        Program second(home, wish);
        EXPECT_EQ(second.status(), 0);
        EXPECT_EQ(second.output(), u""_s);
        EXPECT_EQ(second.complaints(), u""_s);
    }
    expectToRunAndEnd(first);
}

TEST_F(Launch, ASecondLaunchDoesNotTouchTheProgressFile)
{
    // given
    Program first(home);
    ASSERT_TRUE(first.waitUntilItAnswers());
    const Fingerprint before = fingerprint(home.dataFolder());
    // when
    Program second(home);
    EXPECT_EQ(second.status(), 0);
    // then
    EXPECT_EQ(fingerprint(home.dataFolder()), before);
}

TEST_F(Launch, ASecondLaunchDoesNotEvenMakeAProgressFileOfItsOwn)
{
    // given
    Program first(home);
    ASSERT_TRUE(first.waitUntilItAnswers());
    // when
    home.environment.insert(u"HV_DB_PATH"_s, home.path(u"other.sqlite"_s));
    Program second(home);
    EXPECT_EQ(second.status(), 0);
    // then
    EXPECT_FALSE(QFileInfo::exists(home.path(u"other.sqlite"_s)));
}

TEST_F(Launch, AnswersAreGivenWhileACameraIsOpen)
{
    Program first(home);
    ASSERT_TRUE(first.waitUntilItAnswers());
    Program second(home, { u"--version"_s });
    EXPECT_EQ(second.status(), 0);
    EXPECT_TRUE(second.output().startsWith("CRVN Halvorin "_L1));
    expectToRunAndEnd(first);
}

TEST_F(Launch, TheCameraOpensAgainAfterItHasEnded)
{
    for (int time = 0; time < 2; ++time) {
        Program program(home);
        expectToRunAndEnd(program);
    }
}

// Ends

TEST_P(LaunchEndedBySignal, EndsAsIfItsWindowWereClosed)
{
    // given: a store that has changes to bring home
    Program program(home);
    ASSERT_TRUE(program.waitUntilItAnswers());
    ASSERT_TRUE(QFileInfo::exists(home.progressFile() + u"-wal"_s));
    // when
    program.send(GetParam());
    // then
    EXPECT_EQ(program.status(), 0);
    EXPECT_EQ(fingerprint(home.dataFolder()).keys(), QStringList(u"My Progress.sqlite"_s));
}

INSTANTIATE_TEST_SUITE_P(
    Signals, LaunchEndedBySignal, ::testing::Values(SIGTERM, SIGINT, SIGHUP), [](const auto &info) {
        switch (info.param) {
        case SIGTERM:
            return "Terminate";
        case SIGINT:
            return "Interrupt";
        default:
            return "HangUp";
        }
    });

TEST_F(Launch, OutlivesItsTerminalIfItWasStartedTo)
{
    // given
    Program program(home, {}, [] { std::signal(SIGHUP, SIG_IGN); });
    ASSERT_TRUE(program.waitUntilItAnswers());
    EXPECT_FALSE(program.handles(SIGHUP));
    // when
    program.send(SIGHUP);
    // then
    EXPECT_TRUE(program.waitUntilItAnswers());
    expectToRunAndEnd(program);
}

TEST_F(Launch, EndsWhenAskedBeforeItHasAWindow)
{
    // given: a launch that has just got ready for the request
    Program program(home);
    while (program.isRunning() && !program.handles(SIGTERM)) { }
    // when
    program.send(SIGTERM);
    // then
    EXPECT_EQ(program.status(), 0);
    EXPECT_FALSE(QFileInfo::exists(home.progressFile() + u"-wal"_s));
}

TEST_F(Launch, EndsTidilyWhenAskedWhileItsWindowIsBeingBuilt)
{
    // given: a launch that has got as far as the progress file
    Program program(home);
    while (program.isRunning() && !QFileInfo::exists(home.progressFile())) { }
    // when
    program.send(SIGTERM);
    // then
    EXPECT_EQ(program.status(), 0);
    EXPECT_EQ(fingerprint(home.dataFolder()).keys(), QStringList(u"My Progress.sqlite"_s));
}

TEST_F(Launch, OpensAfterAKill)
{
    // given
    {
        Program program(home);
        ASSERT_TRUE(program.waitUntilItAnswers());
        program.send(SIGKILL);
        EXPECT_EQ(program.status(), std::nullopt);
    }
    ASSERT_TRUE(QFileInfo::exists(home.socket()));
    // then
    Program program(home);
    expectToRunAndEnd(program);
    EXPECT_EQ(stopgaps(), QStringList());
}

TEST_F(Launch, KeepsTheUsersProgress)
{
    // given
    QDir().mkpath(home.dataFolder());
    UserStore(QUrl::fromLocalFile(home.progressFile())).setComplete(u"a1-l1"_s, true);
    // when
    Program program(home);
    expectToRunAndEnd(program);
    // then
    EXPECT_EQ(UserStore(QUrl::fromLocalFile(home.progressFile())).completedLessons(),
        QSet<QString>{ u"a1-l1"_s });
}

TEST_F(Launch, LeavesADamagedProgressFileAsItIs)
{
    // given
    QDir().mkpath(home.dataFolder());
    writeFile(home.progressFile(), QByteArray("Monday: bought a tripod.\n").repeated(10));
    const QByteArray before = fingerprint(home.dataFolder()).value(u"My Progress.sqlite"_s);
    // when
    Program program(home);
    ASSERT_TRUE(program.waitUntilItAnswers());
    // then: while it runs
    EXPECT_EQ(fingerprint(home.dataFolder()).value(u"My Progress.sqlite"_s), before);
    EXPECT_EQ(stopgaps().size(), 1);
    // and afterwards
    expectToRunAndEnd(program);
    EXPECT_EQ(fingerprint(home.dataFolder()).value(u"My Progress.sqlite"_s), before);
    EXPECT_EQ(QDir(home.dataFolder()).entryList(QDir::Files).size(), 2);
}

INSTANTIATE_TEST_SUITE_P(
    Umasks, LaunchUnderUmask, ::testing::Values(0000, 0022, 0077), [](const auto &info) {
        return "Umask" + std::to_string(info.param / 8) + std::to_string(info.param % 8);
    });

TEST_P(LaunchUnderUmask, MakesEverythingForItsUserAlone)
{
    QDir(home.path(u"data"_s)).removeRecursively();
    QDir(home.path(u"config"_s)).removeRecursively();
    runAndLook();
    for (const QString &folder : { u"data"_s, u"config"_s })
        EXPECT_EQ(QFile::permissions(home.path(folder)) & kOthers, QFile::Permissions());
    EXPECT_TRUE(QFileInfo(home.preferencesFile()).isFile());
}

TEST_P(LaunchUnderUmask, TakesTheRightsOfOthersFromWhatIsItsUsers)
{
    // given: what an earlier run has made, open to everybody
    runAndLook();
    ASSERT_TRUE(QFile::setPermissions(home.dataFolder(), QFile::Permissions(0x7777)));
    for (const QString &file : { home.progressFile(), home.preferencesFile() })
        ASSERT_TRUE(QFile::setPermissions(file, QFile::Permissions(0x6666))) << qPrintable(file);
    // given: a file that isn't the program's
    const QString foreign = home.path(u"data/foreign.txt"_s);
    writeFile(foreign, "foreign");
    ASSERT_TRUE(QFile::setPermissions(foreign, QFile::Permissions(0x6644)));
    // then
    Program program(home, {}, [mask = GetParam()] { ::umask(mode_t(mask)); });
    ASSERT_TRUE(program.waitUntilItAnswers());
    EXPECT_EQ(QFile::permissions(home.dataFolder()) & kOthers, QFile::Permissions());
    for (const QString &suffix : { u""_s, u"-wal"_s, u"-shm"_s })
        EXPECT_EQ(QFile::permissions(home.progressFile() + suffix) & kOthers, QFile::Permissions());
    EXPECT_EQ(QFile::permissions(foreign), QFile::Permissions(0x6644));
}

TEST_F(Launch, LeavesTheRightsOfAProgressFileThatItsUserNames)
{
    const QString path = home.path(u"shared.sqlite"_s);
    static_cast<void>(UserStore(QUrl::fromLocalFile(path)));
    ASSERT_TRUE(QFile::setPermissions(path, QFile::Permissions(0x6660)));
    home.environment.insert(u"HV_DB_PATH"_s, path);
    Program program(home);
    expectToRunAndEnd(program);
    EXPECT_EQ(QFile::permissions(path), QFile::Permissions(0x6660));
}
