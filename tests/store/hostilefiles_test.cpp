// Files that somebody has made to do harm, in the progress file's place: each opens or is refused,
// and nothing is run, followed, filled or written to that isn't the user's file.
//
// HV_HOSTILE_FILES sets how many mutated files to try; 200 if unset. More than that are counted on
// the standard output by what became of them.

#include "store/progressfiletrial.h"
#include "store/rehearsal.h"
#include "store/userstore.h"
#include "store/watcheddisk.h"

#include "support/environment.h"
#include "support/watchdog.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QtEndian>

#include <gtest/gtest.h>

#include <sqlite3.h>

#include <algorithm>
#include <iostream>
#include <iterator>
#include <random>
#include <vector>

#ifdef Q_OS_UNIX
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#endif

using namespace Qt::StringLiterals;
using namespace StoreTesting;

namespace {

constexpr int kUsualFiles = 200;
constexpr qsizetype kPage = 4096;
constexpr qsizetype kHeader = 100;

using Generator = std::mt19937;

qsizetype anyBelow(qsizetype limit, Generator &random)
{
    return limit > 0 ? std::uniform_int_distribution<qsizetype>(0, limit - 1)(random) : 0;
}

QByteArray noise(qsizetype length, Generator &random)
{
    QByteArray bytes(length, Qt::Uninitialized);
    std::ranges::generate(bytes, [&] { return char(anyBelow(256, random)); });
    return bytes;
}

// A progress file and what stood beside it while it was open.
struct Image {
    QByteArray file;
    QByteArray wal;
    QByteArray shm;
    QByteArray journal;
};

void fill(UserStore &store, int notes)
{
    for (int i = 0; i < notes; ++i) {
        Note note{ .targetType = i % 2 ? u"gear"_s : u"lesson"_s,
            .targetID = u"m01.%1"_s.arg(i),
            .body = u"Expose for the shadows. "_s.repeated(1 + i * i % 400) };
        store.save(note);
        store.setComplete(note.targetID, true);
        store.saveQuiz(u"m01"_s, i % 6, 6, QDateTime::currentDateTimeUtc());
        store.setBookmark(u"gear"_s, note.targetID, i % 3 == 0);
    }
}

// Files of this program, small and large, with and without changes beside them.
std::vector<Image> images()
{
    std::vector<Image> images;
    for (const int notes : { 0, 3, 60 }) {
        const Folder folder;
        const QString path = folder.path(kProgressFile);
        {
            UserStore store(folder.url(kProgressFile));
            fill(store, notes);
            images.push_back(
                { fileBytes(path), fileBytes(path + u"-wal"), fileBytes(path + u"-shm") });
        }
        images.push_back({ .file = fileBytes(path) });

        // The journal of a change that is under way.
        SQLiteDB db(path);
        db.exec(u"PRAGMA journal_mode = DELETE; PRAGMA synchronous = OFF; BEGIN;"
                "UPDATE notes SET body = 'half done'; DELETE FROM progress"_s);
        const QByteArray journal = fileBytes(path + u"-journal");
        db.exec(u"COMMIT"_s);
        images.push_back({ .file = fileBytes(path), .journal = journal });
    }
    return images;
}

QByteArray page(const QByteArray &file, qsizetype number)
{
    return file.mid(number * kPage, kPage);
}

// One thing that happens to a file.
void mutate(QByteArray &file, Generator &random)
{
    if (file.isEmpty())
        return;
    const qsizetype pages = (file.size() + kPage - 1) / kPage;
    const qsizetype at = anyBelow(pages, random);
    const qsizetype other = anyBelow(pages, random);
    switch (anyBelow(10, random)) {
    case 0: // flipped bits anywhere
        for (qsizetype i = 1 + anyBelow(64, random); i > 0; --i)
            file[anyBelow(file.size(), random)] ^= char(1 << anyBelow(8, random));
        break;
    case 1: { // two pages in each other's place
        const QByteArray first = page(file, at);
        const QByteArray second = page(file, other);
        file.replace(at * kPage, second.size(), second);
        file.replace(other * kPage, first.size(), first);
        break;
    }
    case 2: // a page twice
        file.replace(at * kPage, page(file, other).size(), page(file, other));
        break;
    case 3: // cut between pages or anywhere
        file.truncate(anyBelow(2, random) ? at * kPage : anyBelow(file.size(), random));
        break;
    case 4: // an empty page
        file.replace(at * kPage, page(file, at).size(), QByteArray(page(file, at).size(), '\0'));
        break;
    case 5: // a header field
        file[anyBelow(qMin(kHeader, file.size()), random)] = char(anyBelow(256, random));
        break;
    case 6: // the head of a page, which says what it holds and where
        for (qsizetype i = 1 + anyBelow(6, random); i > 0; --i) {
            const qsizetype byte = at * kPage + (at == 0 ? kHeader : 0) + anyBelow(32, random);
            if (byte < file.size())
                file[byte] = char(anyBelow(256, random));
        }
        break;
    case 7: // a stretch of noise
        for (qsizetype i = anyBelow(200, random), from = anyBelow(file.size(), random);
             i > 0 && from < file.size(); --i, ++from)
            file[from] = char(anyBelow(256, random));
        break;
    case 8: // more than belongs to it
        file += anyBelow(2, random) ? page(file, at) : noise(anyBelow(3 * kPage, random), random);
        break;
    default: // a number of the schema or of a cell is another
        for (qsizetype i = 1 + anyBelow(4, random); i > 0; --i)
            file[anyBelow(qMin(kPage, file.size()), random)] = char(anyBelow(256, random));
        break;
    }
}

void writeUnlessEmpty(const QString &path, const QByteArray &bytes)
{
    QFile::remove(path);
    if (!bytes.isEmpty())
        writeFile(path, bytes);
}

// The same number gives the same file.
void makeHostileFile(const QString &path, const std::vector<Image> &images, int number)
{
    Generator random{ Generator::result_type(number) };
    const auto any = [&]() -> const Image & {
        return images[size_t(anyBelow(qsizetype(images.size()), random))];
    };
    Image image = any();
    for (qsizetype i = anyBelow(4, random); i > 0; --i)
        mutate(image.file, random);
    switch (anyBelow(5, random)) {
    case 0: // what belongs to another file
        image.wal = any().wal;
        image.journal = any().journal;
        image.shm = any().shm;
        break;
    case 1: // what was damaged itself
        mutate(image.wal, random);
        mutate(image.journal, random);
        mutate(image.shm, random);
        break;
    case 2:
        image.wal = noise(anyBelow(20000, random), random);
        break;
    default:
        break;
    }
    writeFile(path, image.file);
    writeUnlessEmpty(path + u"-wal", image.wal);
    writeUnlessEmpty(path + u"-shm", image.shm);
    writeUnlessEmpty(path + u"-journal", image.journal);
}

class HostileFile : public ::testing::Test
{
protected:
    void TearDown() override
    {
        EXPECT_EQ(fingerprint(scratch.path()), Fingerprint());
        EXPECT_EQ(fingerprint(elsewhere.path()), before);
    }

    // A sound file of this program with these changes made to it by hand.
    void makeOurs(const QString &sql = {}) const
    {
        {
            UserStore store(folder.url(kProgressFile));
            fill(store, 3);
        }
        // By the command of a program that forbids nothing.
        if (!sql.isEmpty())
            runPlainly(sql);
    }

    void runPlainly(const QString &sql) const
    {
        sqlite3 *db = nullptr;
        ASSERT_EQ(sqlite3_open(path.toUtf8().constData(), &db), SQLITE_OK);
        EXPECT_EQ(sqlite3_exec(db, sql.toUtf8().constData(), nullptr, nullptr, nullptr), SQLITE_OK)
            << sqlite3_errmsg(db);
        sqlite3_close(db);
    }

    void replaceTable(const QString &name, const QString &sql) const
    {
        makeOurs(u"DROP TABLE %1;"_s.arg(name) + sql);
    }

    // Turns a table into a tree of pages in which all branches of each page lead to the same next
    // one: few bytes, and more rows than anybody could wait for.
    void makeEndless(const QString &table) const
    {
        constexpr int levels = 12;
        constexpr int branches = 400;
        const auto leadingTo = [](qsizetype next) {
            QByteArray page(kPage, '\0');
            page[0] = 5; // an inner page of a table
            qToBigEndian<quint16>(branches, page.data() + 3);
            qsizetype content = kPage;
            qToBigEndian<quint32>(quint32(next), page.data() + 8);
            for (int i = 0; i < branches; ++i) {
                content -= 5; // the number of the next page, and a key
                qToBigEndian<quint32>(quint32(next), page.data() + content);
                page[content + 4] = 1;
                qToBigEndian<quint16>(quint16(content), page.data() + 12 + 2 * i);
            }
            qToBigEndian<quint16>(quint16(content), page.data() + 5);
            return page;
        };
        const qsizetype root = SQLiteDB(path).scalarInt(
            u"SELECT rootpage FROM sqlite_schema WHERE name = ?"_s, { table });
        QByteArray file = fileBytes(path);
        const QByteArray leaf = page(file, root - 1);
        qsizetype pages = file.size() / kPage;
        file.replace((root - 1) * kPage, kPage, leadingTo(++pages));
        for (int level = 1; level < levels; ++level)
            file += leadingTo(++pages);
        file += leaf;
        qToBigEndian<quint32>(quint32(pages), file.data() + 28);
        writeFile(path, file);
    }

    // Refused with every byte in its place, which the trial sees to.
    void expectRefused() const { EXPECT_TRUE(tryProgressFile(folder)); }

    const Folder folder;
    // The rest of the world: where copies are made, and what a file might lead to.
    const Folder scratch;
    const Folder elsewhere;
    const QString path = folder.path(kProgressFile);
    Fingerprint before = fingerprint(elsewhere.path());
    const EnvironmentVariable temporaryFolder{ "TMPDIR", scratch.path() };
    const Watchdog watchdog;
};

} // namespace

TEST(HostileProgressFiles, OpenOrAreRefusedAndHarmNothing)
{
    bool isSet = false;
    const int asked = qEnvironmentVariableIntValue("HV_HOSTILE_FILES", &isSet);
    const int files = isSet ? asked : kUsualFiles;

    const Folder folder;
    const std::vector<Image> images = ::images();
    const Folder scratch;
    const EnvironmentVariable temporaryFolder("TMPDIR", scratch.path());
    // Which leaves the waiting for the platter out.
    const WatchedDisk disk([](const DiskOperation &) { return SQLITE_OK; });
    QMap<QString, int> outcomes;
    qint64 slowest = 0;
    int slowestNumber = 0;
    for (int number = 0; number < files; ++number) {
        const Watchdog watchdog;
        for (const QString &name : fingerprint(folder.path()).keys())
            QFile::remove(folder.path(name));
        makeHostileFile(folder.path(kProgressFile), images, number);
        QElapsedTimer timer;
        timer.start();
        std::optional<HVError> refusal;
        ASSERT_NO_THROW(refusal = tryProgressFile(folder)) << "file " << number;
        if (timer.elapsed() > slowest) {
            slowest = timer.elapsed();
            slowestNumber = number;
        }
        ++outcomes[refusal ? refusal->description() : u"opened"_s];
        ASSERT_EQ(fingerprint(scratch.path()), Fingerprint()) << "file " << number;
    }
    // Both must happen, or the mutations are of no use.
    EXPECT_GT(outcomes[u"opened"_s], files / 10);
    EXPECT_LT(outcomes[u"opened"_s], files);
    if (isSet) {
        for (auto outcome = outcomes.cbegin(); outcome != outcomes.cend(); ++outcome)
            std::cout << outcome.value() << '\t' << outcome.key().toStdString() << '\n';
        std::cout << "slowest: " << slowest << " ms, file " << slowestNumber << std::endl;
    }
}

// Whatever stands under the name of a table of ours must be a table, and compute nothing.

namespace {

struct Impostor {
    const char *name;
    const char *table;
    const char *sql;
};

void PrintTo(const Impostor &impostor, std::ostream *out)
{
    *out << impostor.name;
}

class HostileTable : public HostileFile, public ::testing::WithParamInterface<Impostor>
{
};

constexpr Impostor kImpostors[]{
    { "MetaThatIsAView", "meta", "CREATE VIEW meta AS SELECT 'schema' AS key, '1' AS value" },
    { "ProgressThatIsAView", "progress", "CREATE VIEW progress AS SELECT 1 AS lesson_id" },
    { "QuizResultsThatAreAView", "quiz_results",
        "CREATE VIEW quiz_results AS WITH RECURSIVE n(id) AS (SELECT 1 UNION ALL SELECT id + 1 "
        "FROM n) SELECT id, 'm01' AS module_id, 1 AS score, 1 AS total, 1 AS taken FROM n" },
    { "BookmarksThatAreAView", "bookmarks",
        "CREATE VIEW bookmarks AS SELECT 'gear' AS target_type, 'x' AS target_id, 1 AS created" },
    { "ProgressThatIsAVirtualTable", "progress",
        "CREATE VIRTUAL TABLE progress USING fts5(lesson_id, completed)" },
    { "ATextThatIsGenerated", "notes",
        "CREATE TABLE notes (id INTEGER PRIMARY KEY, target_type TEXT, target_id TEXT, "
        "body TEXT GENERATED ALWAYS AS (instr(hex(zeroblob(30000000)), "
        "hex(zeroblob(15000000)) || 'x')), created REAL, updated REAL)" },
    { "ADateThatIsGeneratedAndStored", "progress",
        "CREATE TABLE progress (lesson_id TEXT PRIMARY KEY, completed REAL, "
        "twice REAL GENERATED ALWAYS AS (completed * 2) STORED)" },
    { "ADefaultThatIsComputed", "quiz_results",
        "CREATE TABLE quiz_results (id INTEGER PRIMARY KEY, module_id TEXT, score INTEGER, "
        "total INTEGER, taken REAL, more TEXT DEFAULT (hex(zeroblob(10000000))))" },
    { "AnIndexThatIsComputed", "bookmarks",
        "CREATE TABLE bookmarks (target_type TEXT, target_id TEXT, created REAL);"
        "CREATE INDEX i ON bookmarks (replace(target_id, 'a', 'b'))" },
    { "AnIndexWithACondition", "bookmarks",
        "CREATE TABLE bookmarks (target_type TEXT, target_id TEXT, created REAL);"
        "CREATE INDEX i ON bookmarks (created) WHERE length(target_id) > 1" },
    { "ATableThatDeletesWithAnother", "notes",
        "CREATE TABLE notes (id INTEGER PRIMARY KEY, target_type TEXT, target_id TEXT REFERENCES "
        "progress (lesson_id) ON DELETE CASCADE, body TEXT, created REAL, updated REAL)" },
};

INSTANTIATE_TEST_SUITE_P(Refused, HostileTable, ::testing::ValuesIn(kImpostors),
    [](const auto &info) { return std::string(info.param.name); });

} // namespace

TEST_P(HostileTable, IsRefused)
{
    replaceTable(QString::fromLatin1(GetParam().table), QString::fromLatin1(GetParam().sql));
    expectRefused();
}

TEST_P(HostileTable, IsRefusedInAFileTooLargeToCopy)
{
    replaceTable(QString::fromLatin1(GetParam().table), QString::fromLatin1(GetParam().sql));
    ASSERT_TRUE(QFile::resize(path, 300 * 1024 * 1024)); // sparse
    EXPECT_TRUE(
        errorOf([&] { static_cast<void>(Store::openProgressFile(folder.url(kProgressFile))); }));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{ kProgressFile });
}

TEST_F(HostileFile, RunsNoTriggerOfTheFile)
{
    makeOurs(u"CREATE TRIGGER a AFTER INSERT ON notes BEGIN DELETE FROM notes; END;"
             "CREATE TRIGGER b BEFORE INSERT ON progress BEGIN SELECT RAISE(ABORT, 'no'); END;"
             "CREATE TRIGGER c AFTER INSERT ON meta BEGIN DELETE FROM notes; END;"
             "DELETE FROM meta"_s);
    EXPECT_FALSE(tryProgressFile(folder));
    const auto store = Store::openProgressFile(folder.url(kProgressFile));
    EXPECT_EQ(store->notes().size(), 3);
    EXPECT_TRUE(store->isComplete(u"m01.1"_s)); // which the trial has saved
}

TEST_F(HostileFile, ChecksNothingThatTheFileWantsChecked)
{
    replaceTable(u"notes"_s,
        u"CREATE TABLE notes (id INTEGER PRIMARY KEY AUTOINCREMENT, target_type TEXT, "
        "target_id TEXT, body TEXT CHECK (body GLOB '*a*a*a*a*a*a*a*a*a*a*b'), created REAL, "
        "updated REAL)"_s);
    Note note{ .targetType = u"general"_s, .targetID = u"general"_s, .body = u"a"_s.repeated(400) };
    Store::openProgressFile(folder.url(kProgressFile))->save(note);
    EXPECT_EQ(Store::openProgressFile(folder.url(kProgressFile))->notes().size(), 1);
}

TEST_F(HostileFile, LeavesViewsWithoutEndAlone)
{
    QString views = u"CREATE VIEW v0 AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 "
                    "FROM n) SELECT i FROM n;"_s;
    for (int i = 1; i < 60; ++i) // each twice as large as the one before
        views += u"CREATE VIEW v%1 AS SELECT a.i FROM v%2 a JOIN v%2 b;"_s.arg(i).arg(i - 1);
    makeOurs(views);
    EXPECT_FALSE(tryProgressFile(folder));
}

TEST_F(HostileFile, RefusesASchemaThatNamesAnotherDatabase)
{
    for (const QString &sql :
        { u"CREATE TRIGGER other.t AFTER INSERT ON notes BEGIN SELECT 1; END"_s,
            u"CREATE VIEW w AS SELECT * FROM other.notes"_s, u"CREATE TABLE other.t (a)"_s }) {
        QFile::remove(path);
        makeOurs(u"PRAGMA writable_schema = ON; INSERT INTO sqlite_schema VALUES "
                 "('table', 't', 'notes', 0, '%1')"_s.arg(sql));
        expectRefused();
    }
}

TEST_F(HostileFile, RefusesASchemaWhoseTextIsNone)
{
    makeOurs(u"PRAGMA writable_schema = ON; UPDATE sqlite_schema SET sql = 'CREATE TABLE notes (' "
             "WHERE name = 'notes'"_s);
    expectRefused();
}

TEST_F(HostileFile, ReadsFilesOfOtherEncodings)
{
    for (const QString &encoding : { u"UTF-16le"_s, u"UTF-16be"_s }) {
        QFile::remove(path);
        runPlainly(
            u"PRAGMA encoding = '%1'; CREATE TABLE notes (id INTEGER PRIMARY KEY, "
            "target_type TEXT, target_id TEXT, body TEXT, created REAL, updated REAL);"
            "INSERT INTO notes VALUES (1, 'general', 'general', 'Fünf ✓', 1, 1)"_s.arg(encoding));
        EXPECT_FALSE(tryProgressFile(folder));
        EXPECT_EQ(Store::openProgressFile(folder.url(kProgressFile))->notes().constFirst().body,
            u"Fünf ✓"_s);
    }
}

TEST_F(HostileFile, GoesOnWithoutNotesThatAreTooLong)
{
    makeOurs(u"INSERT INTO notes (target_type, target_id, body, created, updated) "
             "VALUES ('general', 'general', zeroblob((64 << 20) + 1), 1, 1)"_s);
    EXPECT_FALSE(tryProgressFile(folder));
    const auto store = Store::openProgressFile(folder.url(kProgressFile));
    EXPECT_TRUE(store->notes().isEmpty());
    EXPECT_EQ(store->quizResults().size(), 4); // with that of the trial
}

TEST_F(HostileFile, RefusesATableThatHasNoEnd)
{
    for (const QString &table : { u"progress"_s, u"quiz_results"_s, u"notes"_s, u"bookmarks"_s }) {
        SCOPED_TRACE(table.toStdString());
        QFile::remove(path);
        makeOurs();
        makeEndless(table);
        expectRefused();
    }
}

TEST_F(HostileFile, RefusesATableThatHasNoEndWhereAnIndexOfItIsMissing)
{
    makeOurs(u"DROP INDEX notes_target"_s);
    makeEndless(u"notes"_s);
    expectRefused();
}

TEST_F(HostileFile, RefusesATableThatHasNoEndInAFileTooLargeToCopy)
{
    makeOurs();
    makeEndless(u"notes"_s);
    ASSERT_TRUE(QFile::resize(path, 300 * 1024 * 1024)); // sparse
    EXPECT_TRUE(
        errorOf([&] { static_cast<void>(Store::openProgressFile(folder.url(kProgressFile))); }));
}

TEST_F(HostileFile, OpensAFileOfTwentyGigabytesWithoutCopyingIt)
{
    makeOurs();
    ASSERT_TRUE(QFile::resize(path, 20LL << 30)); // sparse
    const auto store = Store::openProgressFile(folder.url(kProgressFile));
    EXPECT_EQ(store->notes().size(), 3);
}

TEST_F(HostileFile, RefusesTwentyGigabytesOfNothing)
{
    writeFile(path, {});
    ASSERT_TRUE(QFile::resize(path, 20LL << 30)); // sparse
    EXPECT_TRUE(
        errorOf([&] { static_cast<void>(Store::openProgressFile(folder.url(kProgressFile))); }));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{ kProgressFile });
    EXPECT_EQ(QFileInfo(path).size(), 20LL << 30);
}

TEST_F(HostileFile, GrowsToNoSizeThatAJournalMakesUp)
{
    Image image = images().back();
    ASSERT_FALSE(image.journal.isEmpty());
    qToBigEndian<quint32>(1 << 28, image.journal.data() + 16); // pages, a terabyte
    writeFile(path, image.file);
    writeFile(path + u"-journal", image.journal);
    expectRefused();
}

TEST_F(HostileFile, CopiesNoTwentyGigabytesOfChanges)
{
    makeOurs();
    writeFile(path + u"-wal", {});
    ASSERT_TRUE(QFile::resize(path + u"-wal", 20LL << 30)); // sparse
    EXPECT_EQ(Store::openProgressFile(folder.url(kProgressFile))->notes().size(), 3);
}

#ifdef Q_OS_UNIX

namespace {

// A socket with a name, as programs leave them in folders.
void makeSocket(const QString &path)
{
    const int handle = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray name = QFile::encodeName(path);
    ASSERT_LT(size_t(name.size()), sizeof address.sun_path);
    std::ranges::copy(name, address.sun_path);
    ASSERT_EQ(bind(handle, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    close(handle);
}

} // namespace

TEST_F(HostileFile, RefusesASocket)
{
    makeSocket(path);
    expectRefused();
}

TEST_F(HostileFile, RefusesWhatIsNoFileInTheCompanionsPlaces)
{
    makeOurs();
    for (const QString &suffix : { u"-wal"_s, u"-shm"_s, u"-journal"_s }) {
        const QString companion = path + suffix;
        makeSocket(companion);
        expectRefused();
        QFile::remove(companion);
        ASSERT_EQ(mkfifo(QFile::encodeName(companion).constData(), 0600), 0);
        expectRefused();
        QFile::remove(companion);
        ASSERT_TRUE(QDir().mkdir(companion));
        expectRefused();
        QDir().rmdir(companion);
    }
}

// SQLite would write its changes over whatever such a link leads to.
TEST_F(HostileFile, FollowsNoLinkInTheCompanionsPlaces)
{
    const QString precious = elsewhere.path(u"precious"_s);
    writeFile(precious, "what the user has no second copy of");
    before = fingerprint(elsewhere.path());
    makeOurs();
    for (const QString &suffix : { u"-wal"_s, u"-shm"_s, u"-journal"_s }) {
        for (const QString &target : { precious, elsewhere.path(u"not there"_s) }) {
            ASSERT_TRUE(QFile::link(target, path + suffix));
            expectRefused();
            QFile::remove(path + suffix);
        }
    }
}

TEST_F(HostileFile, LeavesChangesBesideTheMissingFileThatALinkLeadsTo)
{
    writeFile(elsewhere.path(u"Real.sqlite-wal"_s), "all that is left of a progress file");
    before = fingerprint(elsewhere.path());
    ASSERT_TRUE(QFile::link(elsewhere.path(u"Real.sqlite"_s), path));
    expectRefused();
}

TEST_F(HostileFile, RefusesALinkToItself)
{
    ASSERT_TRUE(QFile::link(path, path));
    expectRefused();
}

TEST_F(HostileFile, RefusesALinkToADeviceWithoutEnd)
{
    ASSERT_TRUE(QFile::link(u"/dev/zero"_s, path));
    expectRefused();
}

#endif
