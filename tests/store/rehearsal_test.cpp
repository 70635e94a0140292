#include "store/rehearsal.h"

#include "store/storetesting.h"
#include "store/watcheddisk.h"
#include "support/environment.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <utility>

#ifdef Q_OS_UNIX
#include "support/filesizelimit.h"
#include "support/ordinaryuser.h"

#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace StoreTesting;

namespace {

const QString kName = u"My Progress.sqlite"_s;
const QString kNote = u"Mind the horizon. "_s;

// A progress file of this program, closed and some thirty pages long.
void makeOurs(const QString &path)
{
    UserStore store(QUrl::fromLocalFile(path));
    for (int number = 0; number < 20; ++number) {
        Note note;
        note.targetType = u"general"_s;
        note.targetID = u"general"_s;
        note.body = kNote.repeated(300) + QString::number(number);
        store.save(note);
    }
}

// A database of another program, whose notes the opening can't index.
void makeForeign(const QString &path)
{
    SQLiteDB db(path);
    db.exec(u"CREATE TABLE notes (id INTEGER PRIMARY KEY, text TEXT);"
            "INSERT INTO notes (text) VALUES ('not ours')"_s);
}

// The same with some hundred pages of notes.
void makeLargeForeign(const QString &path)
{
    SQLiteDB db(path);
    db.exec(u"CREATE TABLE notes (id INTEGER PRIMARY KEY, text TEXT);"
            "INSERT INTO notes (text) SELECT hex(randomblob(400)) FROM"
            " (WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n LIMIT 200)"
            " SELECT i FROM n)"_s);
}

// A file whose last change is still in the "-wal" beside it, as a killed process leaves it. The two
// are copied from under the connection that made the change.
template <typename Prepare>
void makeWithWal(const QString &path, Prepare prepare, const QString &change)
{
    const Folder workshop;
    const QString original = workshop.path(kName);
    prepare(original);
    SQLiteDB db(original);
    db.exec(u"PRAGMA journal_mode = WAL;"_s + change);
    writeFile(path, fileBytes(original));
    writeFile(path + u"-wal"_s, fileBytes(original + u"-wal"_s));
}

void makeOursWithWal(const QString &path)
{
    makeWithWal(path, makeOurs, u"UPDATE notes SET body = 'the last thought' WHERE id = 20"_s);
}

void makeForeignWithWal(const QString &path)
{
    makeWithWal(
        path, [](const QString &) {}, u"CREATE TABLE notes (id INTEGER, text TEXT)"_s);
}

// A file whose last change was written but not yet made final, with the "-journal" beside it that
// takes the change back.
template <typename Prepare>
void makeWithHotJournal(const QString &path, Prepare prepare, const QString &change)
{
    const Folder workshop;
    const QString original = workshop.path(kName);
    prepare(original);
    SQLiteDB db(original);
    // Without syncing, the journal is complete before the commit; the commit then deletes it.
    db.exec(u"PRAGMA journal_mode = DELETE; PRAGMA synchronous = OFF; BEGIN;"_s + change);
    writeFile(path + u"-journal"_s, fileBytes(original + u"-journal"_s));
    db.exec(u"COMMIT"_s);
    writeFile(path, fileBytes(original));
}

// A file of which only the first page holds the changes in the "-wal", as a crash in the middle of
// a checkpoint leaves it. By itself it looks cut off.
void makeOursInMiddleOfCheckpoint(const QString &path)
{
    makeWithWal(path, makeOurs,
        u"INSERT INTO notes SELECT NULL, target_type, target_id, body,"
        " created, updated FROM notes"_s);

    const Folder workshop;
    const QString later = workshop.path(kName);
    writeFile(later, fileBytes(path));
    writeFile(later + u"-wal"_s, fileBytes(path + u"-wal"_s));
    SQLiteDB(later).exec(u"PRAGMA wal_checkpoint"_s);
    writeFile(path, fileBytes(later).first(4096) + fileBytes(path).sliced(4096));
}

void makeTruncated(const QString &path, qint64 size)
{
    makeOurs(path);
    QFile file(path);
    ASSERT_GT(file.size(), size);
    ASSERT_TRUE(file.resize(size));
}

// Lets a file or folder have been changed last so long ago.
void makeOld(const QString &path, std::chrono::minutes age)
{
    std::filesystem::last_write_time(
        path.toStdString(), std::filesystem::file_time_type::clock::now() - age);
}

// What a rehearsal that was killed so long ago leaves.
void abandonACopy(const QString &folder, std::chrono::minutes age)
{
    QDir().mkpath(folder);
    for (const QString &name :
        { u"rehearsal.sqlite"_s, u"rehearsal.sqlite-wal"_s, u"rehearsal.sqlite-shm"_s })
        writeFile(QDir(folder).filePath(name), "a copy of notes");
    makeOld(folder, age);
}

QStringList noteBodies(const UserStore &store)
{
    QStringList bodies;
    for (const Note &note : store.notes())
        bodies.append(note.body);
    return bodies;
}

class OpenProgressFile : public ::testing::Test
{
protected:
    void TearDown() override { EXPECT_EQ(fingerprint(scratch.path()), Fingerprint()); }

    void expectRefusedUntouched() const
    {
        const Fingerprint before = fingerprint(folder.path());
        const auto error = errorOf([&] { static_cast<void>(Store::openProgressFile(url)); });
        ASSERT_TRUE(error);
        EXPECT_EQ(error->kind(), HVError::Kind::Database);
        EXPECT_EQ(fingerprint(folder.path()), before);
    }

    const Folder folder;
    // Copies go to a folder of the test's own, where any that is left behind shows.
    const Folder scratch;
    const EnvironmentVariable temporaryFolder{ "TMPDIR", scratch.path() };
    const QString path = folder.path(kName);
    const QUrl url = folder.url(kName);
};

// A file that can't be opened, by the name of its trouble.
struct Unopenable {
    const char *name;
    void (*make)(const QString &path);
};

void PrintTo(const Unopenable &file, std::ostream *out)
{
    *out << file.name;
}

class Refusal : public OpenProgressFile, public ::testing::WithParamInterface<Unopenable>
{
};

constexpr Unopenable kUnopenable[]{
    { "OfATextFile",
        [](const QString &path) { writeFile(path, "Dear diary, f/8 and be there."); } },
    { "OfASingleByte", [](const QString &path) { writeFile(path, "S"); } },
    { "OfZeros", [](const QString &path) { writeFile(path, QByteArray(8192, '\0')); } },
    { "OfHalfAHeader", [](const QString &path) { makeTruncated(path, 50); } },
    { "OfAHeaderAlone", [](const QString &path) { makeTruncated(path, 100); } },
    { "OfAFileCutAtAPageBoundary", [](const QString &path) { makeTruncated(path, 10 * 4096); } },
    { "OfAFileCutInsideAPage", [](const QString &path) { makeTruncated(path, 10 * 4096 + 1000); } },
    { "OfAFileWithADamagedFirstPage",
        [](const QString &path) {
            makeOurs(path);
            writeFile(path, fileBytes(path).replace(100, 3996, QByteArray(3996, '\xFF')));
        } },
    { "OfForeignNotes", makeForeign },
    { "OfForeignNotesInWalMode",
        [](const QString &path) {
            makeForeign(path);
            SQLiteDB(path).exec(u"PRAGMA journal_mode = WAL"_s);
        } },
    { "OfForeignNotesWithAWal", makeForeignWithWal },
    { "OfForeignNotesWithAHotJournal",
        [](const QString &path) { makeWithHotJournal(path, makeForeign, u"DROP TABLE notes"_s); } },
    { "OfForeignMeta",
        [](const QString &path) { SQLiteDB(path).exec(u"CREATE TABLE meta (a, b, c)"_s); } },
    { "OfNotesThatAreAView",
        [](const QString &path) { SQLiteDB(path).exec(u"CREATE VIEW notes AS SELECT 1"_s); } },
    { "OfAFolder", [](const QString &path) { ASSERT_TRUE(QDir().mkdir(path)); } },
    { "OfAFileWithAFolderForItsWal",
        [](const QString &path) {
            makeOurs(path);
            SQLiteDB(path).exec(u"PRAGMA journal_mode = DELETE"_s);
            ASSERT_TRUE(QDir().mkdir(path + u"-wal"_s));
        } },
    { "OfChangesWhoseFileIsMissing",
        [](const QString &path) {
            makeOursWithWal(path);
            ASSERT_TRUE(QFile::remove(path));
        } },
    { "OfChangesWhoseFileIsEmpty",
        [](const QString &path) {
            makeOursWithWal(path);
            writeFile(path, {});
        } },
#ifdef Q_OS_UNIX
    { "OfAPipe",
        [](const QString &path) {
            ASSERT_EQ(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        } },
    { "OfAFileWithAPipeForItsWal",
        [](const QString &path) {
            makeOurs(path);
            ASSERT_EQ(mkfifo(QFile::encodeName(path + u"-wal"_s).constData(), 0600), 0);
        } },
    { "OfALinkToAFolder",
        [](const QString &path) { ASSERT_TRUE(QFile::link(QFileInfo(path).path(), path)); } },
#endif
};

INSTANTIATE_TEST_SUITE_P(ProgressFile, Refusal, ::testing::ValuesIn(kUnopenable),
    [](const auto &info) { return std::string(info.param.name); });

} // namespace

TEST_P(Refusal, LeavesEveryByteAndAddsNone)
{
    GetParam().make(path);
    expectRefusedUntouched();
}

#ifdef Q_OS_UNIX

namespace {

// The index that SQLite keeps beside an open file takes 32 KB.
constexpr rlim_t kNoRoomForAnIndex = 16 * 1024;

constexpr QFile::Permissions kReadable
    = QFile::ReadOwner | QFile::ReadUser | QFile::ReadGroup | QFile::ReadOther;
constexpr QFile::Permissions kWritable
    = QFile::WriteOwner | QFile::WriteUser | QFile::WriteGroup | QFile::WriteOther;
constexpr QFile::Permissions kEverything
    = kReadable | kWritable | QFile::ExeOwner | QFile::ExeUser | QFile::ExeGroup | QFile::ExeOther;

class OpenProgressFileAsOrdinaryUser : public OpenProgressFile
{
protected:
    void SetUp() override
    {
        QFile::setPermissions(folder.path(), kEverything);
        QFile::setPermissions(scratch.path(), kEverything);
        makeOurs(path);
    }

    void expectRefusedUntouchedAsOrdinaryUser() const
    {
        const Fingerprint before = fingerprint(folder.path());
        std::optional<HVError> error;
        {
            const OrdinaryUser user;
            error = errorOf([&] { static_cast<void>(Store::openProgressFile(url)); });
        }
        EXPECT_TRUE(error);
        EXPECT_EQ(fingerprint(folder.path()), before);
    }
};

} // namespace

TEST_F(OpenProgressFile, LeavesADeviceAlone)
{
    const auto devices
        = [] { return QDir(u"/dev"_s).entryList({ u"null*"_s }, QDir::Files | QDir::System); };
    ASSERT_TRUE(QFile::link(u"/dev/null"_s, path));
    const QStringList before = devices();
    expectRefusedUntouched();
    EXPECT_EQ(devices(), before);
}

TEST_F(OpenProgressFileAsOrdinaryUser, OpensAFileOpenToReadingAndWriting)
{
    QFile::setPermissions(path, kReadable | kWritable);
    const OrdinaryUser user;
    EXPECT_EQ(Store::openProgressFile(url)->notes().size(), 20);
}

TEST_F(OpenProgressFileAsOrdinaryUser, LeavesAFileItMayNotReadUntouched)
{
    QFile::setPermissions(path, {});
    expectRefusedUntouchedAsOrdinaryUser();
}

TEST_F(OpenProgressFileAsOrdinaryUser, LeavesAFileItMayNotWriteToUntouched)
{
    QFile::setPermissions(path, kReadable);
    expectRefusedUntouchedAsOrdinaryUser();
}

TEST_F(OpenProgressFileAsOrdinaryUser, LeavesAFileWhoseWalItMayNotWriteToUntouched)
{
    makeOursWithWal(path);
    QFile::setPermissions(path, kReadable | kWritable);
    QFile::setPermissions(path + u"-wal"_s, kReadable);
    expectRefusedUntouchedAsOrdinaryUser();
}

TEST_F(OpenProgressFileAsOrdinaryUser, LeavesAFileUntouchedInAFolderItMayNotWriteTo)
{
    QFile::setPermissions(path, kReadable | kWritable);
    QFile::setPermissions(
        folder.path(), kReadable | QFile::ExeOwner | QFile::ExeUser | QFile::ExeOther);
    expectRefusedUntouchedAsOrdinaryUser();
    QFile::setPermissions(folder.path(), kEverything);
}

TEST_F(OpenProgressFile, OpensOursWhereNoCopyFits)
{
    makeOurs(path);
    std::unique_ptr<UserStore> store;
    {
        const FileSizeLimit limit(64 * 1024);
        ASSERT_GT(QFileInfo(path).size(), 64 * 1024);
        store = Store::openProgressFile(url);
    }
    EXPECT_EQ(store->notes().size(), 20);
}

TEST_F(OpenProgressFile, OpensOursWithAWalWhereNoCopyFits)
{
    makeOursWithWal(path);
    std::unique_ptr<UserStore> store;
    {
        const FileSizeLimit limit(64 * 1024);
        store = Store::openProgressFile(url);
    }
    EXPECT_EQ(store->notes().size(), 20);
}

TEST_F(OpenProgressFile, LeavesOursUntouchedWhereThereIsNoRoomToOpenIt)
{
    makeOurs(path);
    const FileSizeLimit limit(kNoRoomForAnIndex);
    expectRefusedUntouched();
}

TEST_F(OpenProgressFile, LeavesOursWithAWalUntouchedWhereThereIsNoRoomToOpenIt)
{
    makeOursWithWal(path);
    const FileSizeLimit limit(kNoRoomForAnIndex);
    expectRefusedUntouched();
}

TEST_F(OpenProgressFile, LeavesNoNewFileWhereThereIsNoRoomForOne)
{
    for (const rlim_t room : { rlim_t(0), kNoRoomForAnIndex }) {
        const FileSizeLimit limit(room);
        EXPECT_TRUE(errorOf([&] { static_cast<void>(Store::openProgressFile(url)); }));
        EXPECT_EQ(fingerprint(folder.path()), Fingerprint());
    }
}

TEST_F(OpenProgressFile, OpensOursInTheMiddleOfACheckpointWhereNoCopyFits)
{
    makeOursInMiddleOfCheckpoint(path);
    std::unique_ptr<UserStore> store;
    {
        const FileSizeLimit limit(64 * 1024);
        store = Store::openProgressFile(url);
    }
    EXPECT_EQ(store->notes().size(), 40);
}

TEST_F(OpenProgressFile, LeavesForeignTablesUntouchedWhereNoCopyFits)
{
    makeLargeForeign(path);
    const FileSizeLimit limit(64 * 1024);
    ASSERT_GT(QFileInfo(path).size(), 64 * 1024);
    expectRefusedUntouched();
}

TEST_F(OpenProgressFile, LeavesForeignMetaUntouchedWhereNoCopyFits)
{
    makeLargeForeign(path);
    SQLiteDB(path).exec(u"ALTER TABLE notes RENAME TO recipes; CREATE TABLE meta (a, b, c)"_s);
    const FileSizeLimit limit(64 * 1024);
    expectRefusedUntouched();
}

TEST_F(OpenProgressFile, LeavesADamagedFileUntouchedWhereNoCopyFits)
{
    makeTruncated(path, 20 * 4096);
    const FileSizeLimit limit(64 * 1024);
    expectRefusedUntouched();
}

#endif

TEST_F(OpenProgressFile, IsNeededSinceAStoreByItselfChangesAFileThatItCannotOpen)
{
    makeForeign(path);
    const Fingerprint before = fingerprint(folder.path());
    EXPECT_TRUE(errorOf([&] { UserStore store(url); }));
    EXPECT_NE(fingerprint(folder.path()), before);
}

TEST_F(OpenProgressFile, SaysWhatTheOpeningWouldHaveSaid)
{
    makeForeign(path);
    EXPECT_EQ(errorOf([&] { static_cast<void>(Store::openProgressFile(url)); }),
        errorOf([&] { UserStore store(url); }));
}

TEST_F(OpenProgressFile, MakesANewFileWithItsFolders)
{
    const auto store = Store::openProgressFile(folder.url(u"new/folder/Progress.sqlite"_s));
    store->setComplete(u"m01.1"_s, true);
    EXPECT_TRUE(QFileInfo(folder.path(u"new/folder/Progress.sqlite"_s)).isFile());
    EXPECT_TRUE(store->isComplete(u"m01.1"_s));
}

TEST_F(OpenProgressFile, FailsWhereNoFileCanBe)
{
    writeFile(folder.path(u"file"_s), "in the way");
    const Fingerprint before = fingerprint(folder.path());
    EXPECT_TRUE(errorOf([&] {
        static_cast<void>(Store::openProgressFile(folder.url(u"file/Progress.sqlite"_s)));
    }));
    EXPECT_EQ(fingerprint(folder.path()), before);
}

TEST_F(OpenProgressFile, FailsForAnAddressThatIsNoFile)
{
    EXPECT_TRUE(errorOf([] { static_cast<void>(Store::openProgressFile(QUrl())); }));
}

TEST_F(OpenProgressFile, MakesAProgressFileOfAnEmptyFile)
{
    writeFile(path, {});
    Store::openProgressFile(url)->setComplete(u"m01.1"_s, true);
    EXPECT_TRUE(UserStore(url).isComplete(u"m01.1"_s));
}

TEST_F(OpenProgressFile, OpensOurs)
{
    makeOurs(path);
    const Fingerprint before = fingerprint(folder.path());
    EXPECT_EQ(Store::openProgressFile(url)->notes().size(), 20);
    EXPECT_EQ(Store::openProgressFile(url)->url(), url);
    EXPECT_EQ(fingerprint(folder.path()), before);
}

TEST_F(OpenProgressFile, OpensOursWithChangesStillInTheWal)
{
    makeOursWithWal(path);
    const QStringList bodies = noteBodies(*Store::openProgressFile(url));
    EXPECT_EQ(bodies.size(), 20);
    EXPECT_TRUE(bodies.contains(u"the last thought"_s));
}

TEST_F(OpenProgressFile, TakesBackAnUnfinishedChangeAndOpens)
{
    makeWithHotJournal(path, makeOurs, u"DROP TABLE notes; CREATE TABLE notes (text)"_s);
    EXPECT_EQ(Store::openProgressFile(url)->notes().size(), 20);
}

// Two launches after one that was killed as it made the file: SQLite lets the first take the file
// back to nothing, and the second sees it like that.
TEST_F(OpenProgressFile, OpensWhatAnotherLaunchTakesBackMeanwhile)
{
    makeWithHotJournal(
        path, [](const QString &) {}, u"CREATE TABLE meta (key TEXT, value TEXT)"_s);
    bool isTakenBack = false;
    const WatchedDisk disk([&](const DiskOperation &) {
        if (!std::exchange(isTakenBack, true)) {
            QFile::resize(path, 0);
            QFile::remove(path + u"-journal"_s);
        }
        return SQLITE_OK;
    });
    EXPECT_EQ(errorOf([&] { static_cast<void>(Store::openProgressFile(url)); }), std::nullopt);
    EXPECT_TRUE(isTakenBack);
}

TEST_F(OpenProgressFile, AcceptsAForeignDatabaseWithoutAClashingTable)
{
    SQLiteDB(path).exec(u"CREATE TABLE recipes (a); INSERT INTO recipes VALUES ('goulash')"_s);
    Store::openProgressFile(url)->setComplete(u"m01.1"_s, true);
    EXPECT_TRUE(UserStore(url).isComplete(u"m01.1"_s));
    EXPECT_EQ(
        SQLiteDB(path).query(u"SELECT a FROM recipes"_s).constFirst().str(u"a"_s), u"goulash"_s);
}

TEST_F(OpenProgressFile, FollowsALinkAndLeavesItALink)
{
    const Folder elsewhere;
    const QString target = elsewhere.path(u"Real.sqlite"_s);
    makeOursWithWal(target);
    ASSERT_TRUE(QFile::link(target, path));
    const Fingerprint before = fingerprint(folder.path());
    EXPECT_EQ(Store::openProgressFile(url)->notes().size(), 20);
    EXPECT_EQ(fingerprint(folder.path()), before);
}

TEST_F(OpenProgressFile, LeavesWhatALinkLeadsToUntouched)
{
    const Folder elsewhere;
    const QString target = elsewhere.path(u"Real.sqlite"_s);
    makeForeignWithWal(target);
    ASSERT_TRUE(QFile::link(target, path));
    const Fingerprint before = fingerprint(elsewhere.path());
    expectRefusedUntouched();
    EXPECT_EQ(fingerprint(elsewhere.path()), before);
}

TEST_F(OpenProgressFile, MakesTheFileThatALinkLeadsTo)
{
    const Folder elsewhere;
    ASSERT_TRUE(QFile::link(elsewhere.path(u"Real.sqlite"_s), path));
    EXPECT_NE(Store::openProgressFile(url), nullptr);
    EXPECT_EQ(fingerprint(elsewhere.path()).keys(), QStringList{ u"Real.sqlite"_s });
}

TEST_F(OpenProgressFile, OpensWhatStandsBesideTheFolderThatALinkLeadsTo)
{
    const Folder elsewhere;
    ASSERT_TRUE(QDir(elsewhere.path()).mkdir(u"inside"_s));
    ASSERT_TRUE(QFile::link(elsewhere.path(u"inside"_s), folder.path(u"link"_s)));
    makeOurs(elsewhere.path(kName));
    EXPECT_EQ(Store::openProgressFile(folder.url(u"link/../"_s + kName))->notes().size(), 20);
}

TEST_F(OpenProgressFile, LeavesWhatStandsBesideTheFolderThatALinkLeadsToUntouched)
{
    const Folder elsewhere;
    ASSERT_TRUE(QDir(elsewhere.path()).mkdir(u"inside"_s));
    ASSERT_TRUE(QFile::link(elsewhere.path(u"inside"_s), folder.path(u"link"_s)));
    writeFile(elsewhere.path(kName + u"-wal"_s), "all that is left of a progress file");
    const Fingerprint before = fingerprint(elsewhere.path());
    EXPECT_TRUE(errorOf(
        [&] { static_cast<void>(Store::openProgressFile(folder.url(u"link/../"_s + kName))); }));
    EXPECT_EQ(fingerprint(elsewhere.path()), before);
}

TEST_F(OpenProgressFile, MakesANewFileWithItsFoldersBesideTheFolderThatALinkLeadsTo)
{
    const Folder elsewhere;
    ASSERT_TRUE(QDir(elsewhere.path()).mkdir(u"inside"_s));
    ASSERT_TRUE(QFile::link(elsewhere.path(u"inside"_s), folder.path(u"link"_s)));
    EXPECT_NE(Store::openProgressFile(folder.url(u"link/../new/Progress.sqlite"_s)), nullptr);
    EXPECT_TRUE(QFileInfo::exists(elsewhere.path(u"new/Progress.sqlite"_s)));
    EXPECT_FALSE(QFileInfo::exists(folder.path(u"new"_s)));
}

TEST_F(OpenProgressFile, RehearsesBesideTheFileWhereTheTemporaryFolderIsMissing)
{
    const EnvironmentVariable missing("TMPDIR", scratch.path(u"missing"_s));
    makeForeignWithWal(path);
    expectRefusedUntouched(); // without a copy the clash, which the "-wal" holds, doesn't show
}

TEST_F(OpenProgressFile, LeavesNothingBesideTheFileWhereTheTemporaryFolderIsMissing)
{
    const EnvironmentVariable missing("TMPDIR", scratch.path(u"missing"_s));
    makeOurs(path);
    const Fingerprint before = fingerprint(folder.path());
    EXPECT_EQ(Store::openProgressFile(url)->notes().size(), 20);
    EXPECT_EQ(fingerprint(folder.path()), before);
}

TEST_F(OpenProgressFile, DoesNotCopyAFileFarLargerThanOurs)
{
    makeOurs(path);
    ASSERT_TRUE(QFile::resize(path, 300 * 1024 * 1024)); // sparse
    makeOld(scratch.path(), 60min);
    const std::filesystem::path temporary(scratch.path().toStdString());
    const auto longAgo = std::filesystem::last_write_time(temporary);

    EXPECT_EQ(Store::openProgressFile(url)->notes().size(), 20);
    EXPECT_EQ(std::filesystem::last_write_time(temporary), longAgo); // no copy came and went
}

TEST_F(OpenProgressFile, RemovesTheCopiesOfKilledRehearsals)
{
    makeOurs(path);
    const Fingerprint before = fingerprint(folder.path());
    abandonACopy(scratch.path(u"halvorin-rehearsal-Killed"_s), 61min);
    abandonACopy(folder.path(u"halvorin-rehearsal-Killed"_s), 61min);

    EXPECT_EQ(Store::openProgressFile(url)->notes().size(), 20);
    EXPECT_EQ(fingerprint(folder.path()), before);
    // That the folder for temporary files is as empty as it was is asked after each of these tests.
}

TEST_F(OpenProgressFile, LeavesTheCopyOfARehearsalThatMayBeRunning)
{
    makeOurs(path);
    const QString running = scratch.path(u"halvorin-rehearsal-Running"_s);
    abandonACopy(running, 59min);
    const Fingerprint before = fingerprint(running);

    EXPECT_EQ(Store::openProgressFile(url)->notes().size(), 20);
    EXPECT_EQ(fingerprint(running), before);
    EXPECT_TRUE(QDir(running).removeRecursively());
}

TEST_F(OpenProgressFile, RemovesNothingThatNoRehearsalMade)
{
    makeOurs(path);
    const Folder elsewhere;
    const QString linked = elsewhere.path(u"linked"_s);
    abandonACopy(linked, 61min);
    ASSERT_TRUE(QFile::link(linked, folder.path(u"halvorin-rehearsal-Link"_s)));
    const QString otherName = folder.path(u"halvorin"_s);
    abandonACopy(otherName, 61min);
    const QString otherContent = folder.path(u"halvorin-rehearsal-Notes"_s);
    ASSERT_TRUE(QDir().mkdir(otherContent));
    writeFile(otherContent + u"/thoughts.txt"_s, "Mind the horizon.");
    makeOld(otherContent, 61min);
    const auto everything = [&] {
        return QList{ fingerprint(folder.path()), fingerprint(linked), fingerprint(otherName),
            fingerprint(otherContent) };
    };
    const QList<Fingerprint> before = everything();

    EXPECT_EQ(Store::openProgressFile(url)->notes().size(), 20);
    EXPECT_EQ(everything(), before);
}
