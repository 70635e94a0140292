#include "shell/setup.h"

#include "camera/hvcolors.h"
#include "content/contentlibrary.h"
#include "kit/about.h"
#include "kit/kit.h"
#include "kit/preferences.h"
#include "shell/appmodel.h"
#include "shell/info.h"
#include "store/storetesting.h"
#include "store/userstore.h"
#include "support/environment.h"
#include "support/filesizelimit.h"
#include "support/ordinaryuser.h"
#include "support/testcourse.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QFuture>
#include <QRegularExpression>
#include <QThread>
#include <QTimer>

#include <gtest/gtest.h>

#include <future>
#include <memory>

using namespace Qt::StringLiterals;
using namespace StoreTesting;

namespace {

QStringList idsOf(const QList<CRVNTheme> &themes)
{
    QStringList ids;
    for (const CRVNTheme &theme : themes)
        ids.append(theme.id);
    return ids;
}

class HVSetupConfigure : public ::testing::Test
{
protected:
    HVSetupConfigure() { Preferences::shared().keepInMemory(); }
    ~HVSetupConfigure() override { Preferences::shared().keepInMemory(); }
};

// A launch in a home of its own, with the small course and no progress yet.
class HVSetupOpenStore : public ::testing::Test
{
protected:
    HVSetupOpenStore()
    {
        TestCourse::write(home.path(u"course"_s));
        ContentLibrary::setShared(nullptr);
        UserStore::setShared(nullptr);
        AppModel::shared().setMessage(std::nullopt);
        QObject::connect(&AppModel::shared(), &AppModel::messageChanged, &receiver, [this] {
            if (AppModel::shared().hasMessage())
                messages.append(AppModel::shared().messageText());
        });
    }
    ~HVSetupOpenStore() override
    {
        receiver.disconnect();
        UserStore::setShared(nullptr);
        ContentLibrary::setShared(nullptr);
        AppModel::shared().setMessage(std::nullopt);
    }

    [[nodiscard]] QString dataFolder() const { return home.path(u"data/CRVN Halvorin"_s); }
    [[nodiscard]] QString progressFile() const { return dataFolder() + u"/My Progress.sqlite"_s; }

    // The files that took the place of one that couldn't be opened.
    [[nodiscard]] QStringList stopgaps() const
    {
        static const QRegularExpression name(uR"(^My Progress \(opened \d+\)\.sqlite$)"_s);
        return QDir(dataFolder()).entryList(QDir::Files).filter(name);
    }

    // What stands under the progress file's name, made before the launch.
    void putTextFile(const QString &path) const
    {
        QDir().mkpath(QFileInfo(path).path());
        writeFile(path, QByteArray("Monday: bought a tripod.\n").repeated(10));
    }

    // Everything that is queued at this moment has happened afterwards.
    static void letEventLoopRun()
    {
        QEventLoop loop;
        QTimer::singleShot(0, &loop, &QEventLoop::quit);
        loop.exec();
    }

    void launch()
    {
        HVSetup::openStore();
        letEventLoopRun();
        HVSetup::indexCourse()->wait();
        letEventLoopRun();
    }

    // The launch of another second than the last one's.
    void launchInAnotherSecond()
    {
        const qint64 second = QDateTime::currentSecsSinceEpoch();
        while (QDateTime::currentSecsSinceEpoch() == second)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        launch();
    }

    [[nodiscard]] static QString couldNotBeOpened(const QString &reason, const QString &path)
    {
        return u"Your progress file could not be opened (The database reported a problem: "_s
            + reason + u"). It was left untouched at "_s + path
            + u". A new, empty progress file was started instead."_s;
    }

    // The store works and its file is the one new file in the data folder.
    void expectAStopgap() const
    {
        ASSERT_EQ(stopgaps().size(), 1);
        ASSERT_NE(UserStore::shared(), nullptr);
        EXPECT_EQ(UserStore::shared()->url(),
            QUrl::fromLocalFile(dataFolder() + u'/' + stopgaps().constFirst()));
        EXPECT_TRUE(UserStore::shared()->completedLessons().isEmpty());
        UserStore::shared()->setComplete(u"a1-l1"_s, true);
        EXPECT_TRUE(UserStore::shared()->isComplete(u"a1-l1"_s));
    }

    Folder home;
    EnvironmentVariable data{ "XDG_DATA_HOME", home.path(u"data"_s) };
    EnvironmentVariable database{ "HV_DB_PATH", std::nullopt };
    EnvironmentVariable content{ "HV_CONTENT", home.path(u"course"_s) };
    QStringList messages; ///< In the order in which the user would have seen them.
    QObject receiver;
};

const QString kNoCourse = u"Some course files could not be read: "
                          "course.txt: the file can't be found; "
                          "quizzes.txt: the file can't be found; "
                          "gear.txt: the file can't be found; "
                          "timeline.txt: the file can't be found; "
                          "videos.tsv: the file can't be found; "
                          "software.txt: the file can't be found; "
                          "workflows.txt: the file can't be found"_s;

} // namespace

// Names and themes

TEST_F(HVSetupConfigure, MakesBlackAndBrassTheThemeOfAUserWhoHasNeverChosen)
{
    HVSetup::configure();
    EXPECT_EQ(CRVNThemes::defaultID(), u"mf-black-brass"_s);
    EXPECT_EQ(CRVNThemes::currentID(), u"mf-black-brass"_s);
    EXPECT_EQ(CRVNThemes::current().name, u"Medium Format Black & Brass"_s);
}

TEST_F(HVSetupConfigure, KeepsTheThemeThatAUserHasChosen)
{
    CRVNThemes::setCurrentID(u"rose-gold"_s);
    HVSetup::configure();
    EXPECT_EQ(CRVNThemes::currentID(), u"rose-gold"_s);
}

TEST_F(HVSetupConfigure, OffersSevenThemes)
{
    HVSetup::configure();
    EXPECT_EQ(idsOf(CRVNThemes::all()),
        (QStringList{ u"cobalt-gunmetal"_s, u"candy-red-titanium"_s, u"rose-gold"_s,
            u"lavender-pearl"_s, u"midnight-black"_s, u"brushed-gray"_s, u"mf-black-brass"_s }));
}

TEST_F(HVSetupConfigure, CalledTwiceOffersTheSameThemesOnce)
{
    HVSetup::configure();
    const QStringList once = idsOf(CRVNThemes::all());
    HVSetup::configure();
    EXPECT_EQ(idsOf(CRVNThemes::all()), once);
}

TEST_F(HVSetupConfigure, TellsTheKitTheNameOfTheProgram)
{
    HVSetup::configure();
    EXPECT_EQ(CRVNKitHost::appName(), u"CRVN Halvorin"_s);
}

TEST_F(HVSetupConfigure, HandsTheHelpTopicsOverWithoutReadingTheCourse)
{
    // given
    const Folder folder;
    ContentLibrary::setShared(nullptr);
    const EnvironmentVariable content("HV_CONTENT", folder.path(u"course"_s));
    HVSetup::configure();
    TestCourse::write(folder.path(u"course"_s));
    // when
    const QList<CRVNHelpTopic> topics = CRVNHelp::allTopics();
    // then
    ASSERT_EQ(topics.size(), 21);
    EXPECT_EQ(topics[0].id, u"start"_s);
    EXPECT_EQ(topics[18].id, u"credits"_s);
    EXPECT_TRUE(topics[18].body.contains("Bright Room"_L1)) << "a channel of this course";
    EXPECT_EQ(topics[19].id, u"look"_s);
    EXPECT_EQ(topics[20].id, u"about"_s);
    ContentLibrary::setShared(nullptr);
}

TEST_F(HVSetupConfigure, CalledTwiceOffersTheSameTopicsOnce)
{
    HVSetup::configure();
    HVSetup::configure();
    EXPECT_EQ(CRVNHelp::allTopics().size(), 21);
}

TEST_F(HVSetupConfigure, GivesTheAboutWindowItsLines)
{
    HVSetup::configure();
    EXPECT_EQ(CRVNAbout::version(), u"Version 1.0 (1)"_s);
    EXPECT_EQ(CRVNAbout::extraLines(),
        (QStringList{ u"A complete photography course: lessons, labs, history, gear and videos."_s,
            u"Product specs, video links and history sources checked 2026-10-24."_s }));
    EXPECT_EQ(CRVNKitHost::creditURL(), HVInfo::website());
}

TEST_F(HVSetupConfigure, StoresNoPreference)
{
    HVSetup::configure();
    EXPECT_FALSE(Preferences::shared().contains(CRVNThemes::key));
}

// A file that opens

TEST_F(HVSetupOpenStore, UsesTheCourseThatAnotherThreadHasPrepared)
{
    std::async(std::launch::async, HVSetup::prepareCourse).get();
    const EnvironmentVariable nowhere("HV_CONTENT", home.path(u"nowhere"_s));
    launch();
    EXPECT_FALSE(ContentLibrary::shared().lessons().isEmpty());
    EXPECT_EQ(messages, QStringList());
}

TEST_F(HVSetupOpenStore, SearchesFindTheCourseWhileItIsBeingIndexed)
{
    // given: the start as the program makes it
    const std::future<void> course = std::async(std::launch::async, HVSetup::prepareCourse);
    HVSetup::openStore();
    course.wait();
    const std::unique_ptr<QThread> indexing = HVSetup::indexCourse();
    // when
    QFuture<QList<ContentLibrary::Hit>> later
        = ContentLibrary::shared().searchInBackground(u"tripod"_s);
    const QList<ContentLibrary::Hit> hits = ContentLibrary::shared().search(u"tripod"_s);
    // then
    EXPECT_FALSE(hits.isEmpty());
    EXPECT_EQ(later.result().size(), hits.size());
    indexing->wait();
    letEventLoopRun(); // which hears of the thread's end
}

TEST_F(HVSetupOpenStore, MakesAProgressFileAtTheFirstLaunchAndSaysNothing)
{
    launch();
    ASSERT_NE(UserStore::shared(), nullptr);
    EXPECT_EQ(UserStore::shared()->url(), QUrl::fromLocalFile(progressFile()));
    EXPECT_EQ(messages, QStringList());
    EXPECT_EQ(stopgaps(), QStringList());
}

TEST_F(HVSetupOpenStore, OpensTheProgressOfEarlierLaunches)
{
    // given
    launch();
    UserStore::shared()->setComplete(u"a1-l1"_s, true);
    UserStore::setShared(nullptr);
    // when
    launch();
    // then
    ASSERT_NE(UserStore::shared(), nullptr);
    EXPECT_TRUE(UserStore::shared()->isComplete(u"a1-l1"_s));
    EXPECT_EQ(messages, QStringList());
    EXPECT_EQ(stopgaps(), QStringList());
}

TEST_F(HVSetupOpenStore, OpensTheFileThatTheEnvironmentNames)
{
    const EnvironmentVariable path("HV_DB_PATH", home.path(u"elsewhere/mine.sqlite"_s));
    launch();
    ASSERT_NE(UserStore::shared(), nullptr);
    EXPECT_EQ(UserStore::shared()->url(), home.url(u"elsewhere/mine.sqlite"_s));
    EXPECT_FALSE(QFileInfo::exists(progressFile()));
    EXPECT_EQ(messages, QStringList());
}

TEST_F(HVSetupOpenStore, LoadsTheCourse)
{
    launch();
    EXPECT_EQ(ContentLibrary::shared().lessons().size(), 3);
}

// A file that doesn't

TEST_F(HVSetupOpenStore, LeavesATextFileAsItIsAndStartsANewFileBesideIt)
{
    putTextFile(progressFile());
    const QByteArray before = fingerprint(dataFolder()).value(u"My Progress.sqlite"_s);
    launch();
    expectAStopgap();
    EXPECT_EQ(fingerprint(dataFolder()).value(u"My Progress.sqlite"_s), before);
    EXPECT_EQ(messages, QStringList(couldNotBeOpened(u"file is not a database"_s, progressFile())));
}

TEST_F(HVSetupOpenStore, LeavesNothingBesideAFileThatItCouldNotOpen)
{
    putTextFile(progressFile());
    launch();
    UserStore::setShared(nullptr); // whose own file has companions while it is open
    EXPECT_EQ(fingerprint(dataFolder()).keys(),
        (QStringList{ stopgaps().constFirst(), u"My Progress.sqlite"_s }));
}

TEST_F(HVSetupOpenStore, LeavesTheCompanionsOfADamagedFileAsTheyAre)
{
    // given
    putTextFile(progressFile());
    putTextFile(progressFile() + u"-wal"_s);
    putTextFile(progressFile() + u"-shm"_s);
    const Fingerprint before = fingerprint(dataFolder());
    // when
    launch();
    // then
    const Fingerprint after = fingerprint(dataFolder());
    for (const QString &name : before.keys())
        EXPECT_EQ(after.value(name), before.value(name)) << qPrintable(name);
    expectAStopgap();
}

TEST_F(HVSetupOpenStore, LeavesAFolderInThePlaceOfTheFileAsItIs)
{
    putTextFile(progressFile() + u"/inside.txt"_s);
    const Fingerprint before = fingerprint(progressFile());
    launch();
    expectAStopgap();
    EXPECT_EQ(fingerprint(progressFile()), before);
    EXPECT_EQ(messages,
        QStringList(
            couldNotBeOpened(u"My Progress.sqlite is not a regular file"_s, progressFile())));
}

TEST_F(HVSetupOpenStore, StartsANewFileInTheDataFolderWhenAnotherPlaceCanNotBeWrittenTo)
{
    // given
    constexpr auto everyone = QFile::Permissions(0x7777);
    constexpr auto readOnly = QFile::Permissions(0x5555);
    ASSERT_TRUE(QDir().mkpath(home.path(u"data"_s)) && QDir().mkpath(home.path(u"locked"_s)));
    ASSERT_TRUE(QFile::setPermissions(home.path(), everyone));
    ASSERT_TRUE(QFile::setPermissions(home.path(u"data"_s), everyone));
    ASSERT_TRUE(QFile::setPermissions(home.path(u"locked"_s), readOnly));
    const QString locked = home.path(u"locked/mine.sqlite"_s);
    const EnvironmentVariable path("HV_DB_PATH", locked);
    const OrdinaryUser user;
    // when
    launch();
    // then
    expectAStopgap();
    EXPECT_EQ(fingerprint(home.path(u"locked"_s)), Fingerprint());
    EXPECT_EQ(messages, QStringList(couldNotBeOpened(u"unable to open database file"_s, locked)));
}

TEST_F(HVSetupOpenStore, StartsANewFileInTheDataFolderWhenAFileElsewhereIsDamaged)
{
    const QString elsewhere = home.path(u"elsewhere/mine.sqlite"_s);
    putTextFile(elsewhere);
    const Fingerprint before = fingerprint(home.path(u"elsewhere"_s));
    const EnvironmentVariable path("HV_DB_PATH", elsewhere);
    launch();
    expectAStopgap();
    EXPECT_EQ(fingerprint(home.path(u"elsewhere"_s)), before);
    EXPECT_EQ(messages, QStringList(couldNotBeOpened(u"file is not a database"_s, elsewhere)));
}

TEST_F(HVSetupOpenStore, LeavesNothingOnADiskWithoutRoom)
{
    // given: a sound file, and no room for the index that SQLite keeps beside an open one
    HVSetup::openStore();
    UserStore::setShared(nullptr);
    const Fingerprint before = fingerprint(dataFolder());
    // when
    {
        const FileSizeLimit limit(16 * 1024);
        HVSetup::openStore();
    }
    letEventLoopRun();
    // then
    EXPECT_EQ(UserStore::shared(), nullptr);
    EXPECT_EQ(messages, QStringList(couldNotBeOpened(u"disk I/O error"_s, progressFile())));
    EXPECT_EQ(fingerprint(dataFolder()), before);
}

TEST_F(HVSetupOpenStore, LeavesADatabaseWhoseNameBeginsWithAColonUntouched)
{
    // given: one that is refused, in the working folder
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir().mkpath(home.path(u"work"_s)) && QDir::setCurrent(home.path(u"work"_s)));
    SQLiteDB(QDir::currentPath() + u"/:mine.sqlite"_s).exec(u"CREATE TABLE notes (text)"_s);
    const Fingerprint untouched = fingerprint(home.path(u"work"_s));
    const EnvironmentVariable path("HV_DB_PATH", u":mine.sqlite"_s);
    // when
    launch();
    QDir::setCurrent(before);
    // then
    EXPECT_EQ(fingerprint(home.path(u"work"_s)), untouched);
    expectAStopgap();
}

TEST_F(HVSetupOpenStore, CallsTheNewFileByTheSecondOfTheLaunch)
{
    putTextFile(progressFile());
    const qint64 before = QDateTime::currentSecsSinceEpoch();
    launch();
    const qint64 after = QDateTime::currentSecsSinceEpoch();

    ASSERT_EQ(stopgaps().size(), 1);
    QString digits = stopgaps().constFirst();
    digits.remove(u"My Progress (opened "_s).remove(u").sqlite"_s);
    EXPECT_GE(digits.toLongLong(), before);
    EXPECT_LE(digits.toLongLong(), after);
}

TEST_F(HVSetupOpenStore, TwoFailedLaunchesLeaveTwoNewFiles)
{
    // given
    putTextFile(progressFile());
    launch();
    UserStore::shared()->setComplete(u"a1-l1"_s, true);
    UserStore::setShared(nullptr);
    // when
    launchInAnotherSecond();
    // then
    EXPECT_EQ(stopgaps().size(), 2);
    ASSERT_NE(UserStore::shared(), nullptr);
    EXPECT_FALSE(UserStore::shared()->isComplete(u"a1-l1"_s));
}

TEST_F(HVSetupOpenStore, TriesTheUsersOwnFileAgainAtTheNextLaunch)
{
    // given: a launch with a stopgap
    putTextFile(progressFile());
    launch();
    ASSERT_EQ(messages.size(), 1);
    UserStore::setShared(nullptr);
    // when: the user has put a good file back
    ASSERT_TRUE(QFile::remove(progressFile()));
    UserStore(QUrl::fromLocalFile(progressFile())).setComplete(u"a2-l1"_s, true);
    launch();
    // then
    ASSERT_NE(UserStore::shared(), nullptr);
    EXPECT_EQ(UserStore::shared()->url(), QUrl::fromLocalFile(progressFile()));
    EXPECT_TRUE(UserStore::shared()->isComplete(u"a2-l1"_s));
    EXPECT_EQ(messages.size(), 1);
}

TEST_F(HVSetupOpenStore, GoesOnWithoutAStoreWhenTheNewFileFailsTooAndSaysTheSame)
{
    // given: a file where the data folder should be
    writeFile(home.path(u"in the way"_s), "not a folder");
    putTextFile(home.path(u"elsewhere/mine.sqlite"_s));
    const Fingerprint before = fingerprint(home.path(u"elsewhere"_s));
    const EnvironmentVariable noData("XDG_DATA_HOME", home.path(u"in the way"_s));
    const EnvironmentVariable path("HV_DB_PATH", home.path(u"elsewhere/mine.sqlite"_s));
    // when
    launch();
    // then
    EXPECT_EQ(UserStore::shared(), nullptr);
    EXPECT_EQ(messages,
        QStringList(
            couldNotBeOpened(u"file is not a database"_s, home.path(u"elsewhere/mine.sqlite"_s))));
    EXPECT_EQ(fingerprint(home.path(u"elsewhere"_s)), before);
    EXPECT_EQ(fileBytes(home.path(u"in the way"_s)), "not a folder");
}

TEST_F(HVSetupOpenStore, GoesOnWithoutAStoreWhenThereIsNoPlaceForDataAtAll)
{
    writeFile(home.path(u"in the way"_s), "not a folder");
    const EnvironmentVariable noData("XDG_DATA_HOME", home.path(u"in the way"_s));
    launch();
    EXPECT_EQ(UserStore::shared(), nullptr);
    EXPECT_EQ(messages,
        QStringList(couldNotBeOpened(u"unable to open database file"_s,
            home.path(u"in the way/CRVN Halvorin/My Progress.sqlite"_s))));
}

TEST_F(HVSetupOpenStore, TheStoreOfAnEarlierLaunchDoesNotOutliveOneThatFails)
{
    launch();
    ASSERT_NE(UserStore::shared(), nullptr);
    writeFile(home.path(u"in the way"_s), "not a folder");
    const EnvironmentVariable noData("XDG_DATA_HOME", home.path(u"in the way"_s));
    launch();
    EXPECT_EQ(UserStore::shared(), nullptr);
}

// Course files that can't be read

TEST_F(HVSetupOpenStore, NamesAllSevenFilesOfAMissingContentFolder)
{
    const EnvironmentVariable missing("HV_CONTENT", home.path(u"no course"_s));
    launch();
    EXPECT_EQ(messages, QStringList(kNoCourse));
}

TEST_F(HVSetupOpenStore, NamesOnlyTheCourseFilesThatCanNotBeRead)
{
    TestCourse::Files files = TestCourse::files();
    files.remove(u"gear.txt"_s);
    files[u"software.txt"_s] = "=== SOFTWARE \xff\n";
    TestCourse::write(home.path(u"partial"_s), files);
    const EnvironmentVariable partial("HV_CONTENT", home.path(u"partial"_s));
    launch();
    EXPECT_EQ(messages,
        QStringList(u"Some course files could not be read: gear.txt: the file can't be found; "
                    "software.txt: the file isn't valid UTF-8 text"_s));
}

TEST_F(HVSetupOpenStore, OpensTheProgressFileWhateverTheCourseIsLike)
{
    const EnvironmentVariable missing("HV_CONTENT", home.path(u"no course"_s));
    launch();
    ASSERT_NE(UserStore::shared(), nullptr);
    EXPECT_EQ(UserStore::shared()->url(), QUrl::fromLocalFile(progressFile()));
    EXPECT_EQ(stopgaps(), QStringList());
}

TEST_F(HVSetupOpenStore, TheMessageAboutTheCourseComesLastAndStays)
{
    putTextFile(progressFile());
    const EnvironmentVariable missing("HV_CONTENT", home.path(u"no course"_s));
    launch();
    EXPECT_EQ(messages,
        (QStringList{ couldNotBeOpened(u"file is not a database"_s, progressFile()), kNoCourse }));
    EXPECT_EQ(AppModel::shared().message(), kNoCourse);
    expectAStopgap();
}

TEST_F(HVSetupOpenStore, SaysNothingBeforeTheEventLoopRuns)
{
    putTextFile(progressFile());
    const EnvironmentVariable missing("HV_CONTENT", home.path(u"no course"_s));
    HVSetup::openStore();
    EXPECT_EQ(messages, QStringList());
    EXPECT_FALSE(AppModel::shared().hasMessage());
    letEventLoopRun();
    EXPECT_TRUE(AppModel::shared().hasMessage());
}
