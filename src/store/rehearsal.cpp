#include "store/rehearsal.h"

#include "kit/ownersonly.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <sqlite3.h>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

// The file itself and the two companions that hold changes to it: a database makes sense only
// together with these. The third companion, "-shm", is an index that SQLite makes anew.
const QString kFile = u""_s;
const QString kWal = u"-wal"_s;
const QString kJournal = u"-journal"_s;
const QString kIndex = u"-shm"_s;
const QStringList kContents{ kFile, kWal, kJournal };
const QStringList kFiles{ kFile, kWal, kJournal, kIndex };

// A rehearsal's folder and, in it, the copy.
const QString kScratch = u"halvorin-rehearsal-"_s;
const QString kCopy = u"rehearsal.sqlite"_s;

// Many times what a lifetime of notes takes. Copying more than this would fill the disk, or the
// memory behind it, for a file that is hardly ours.
constexpr qint64 kLargestCopy = 256 * 1024 * 1024;

// A file too short for the header of a database is none. SQLite says so as well, except that it
// takes a single byte for an empty file and writes over it.
constexpr qint64 kHeaderSize = 100;

// What SQLite writes at least. A new file has one page, the switch to write-ahead logging, before
// it has a table.
constexpr qint64 kPageSize = 4096;

HVError refusal(const QString &reason)
{
    return HVError(HVError::Kind::Database, reason);
}

bool hasContent(const QString &path)
{
    return QFileInfo(path).size() > 0;
}

// What stands in the file's place, or beside it under a companion's name, must be a regular file
// that can be written to. SQLite would notice too late: it opens what it may only read, makes
// companions for it and fails at the first write; it switches a file to WAL and then finds that the
// "-wal" can't be opened; and it takes a device for an empty database.
void requireWritableFiles(const QString &path)
{
    for (const QString &suffix : kFiles) {
        const QFileInfo info(path + suffix);
        // SQLite would write its changes over whatever file such a link leads to. It makes none.
        if (info.isSymLink() && suffix != kFile)
            throw refusal(info.fileName() + u" is a link"_s);
        if (!info.exists())
            continue;
        if (!info.isFile()) // asked first, for the opening of a pipe would wait for its other end
            throw refusal(info.fileName() + u" is not a regular file"_s);

        QFile file(info.filePath());
        const bool opens = file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly);
        // A companion goes when another process closes the file, which is no obstacle.
        if (!opens && QFileInfo::exists(info.filePath()))
            throw refusal(info.fileName() + u": "_s + file.errorString());
    }
}

// How often a file that changes meanwhile is looked at.
constexpr int kMostLooks = 10;

// What tells one state of a file from the next.
struct Stamp {
    qint64 size;
    QDateTime modified;

    friend bool operator==(const Stamp &, const Stamp &) = default;
};

QList<Stamp> stamps(const QString &path)
{
    QList<Stamp> stamps;
    for (const QString &suffix : kContents) {
        const QFileInfo info(path + suffix);
        stamps.append({ .size = info.size(), .modified = info.lastModified() });
    }
    return stamps;
}

// Trouble with the place of a rehearsal, such as no room, and not with what is rehearsed.
bool isTroubleOfPlace(const HVError &error)
{
    const int code = error.sqliteCode();
    return code == SQLITE_CANTOPEN || code == SQLITE_FULL || code == SQLITE_IOERR;
}

// Not QFile::copy(): the copy must not take over rights that keep us from writing to it.
void copyFile(const QString &from, const QString &to)
{
    constexpr qint64 pieceSize = 1024 * 1024;

    QFile source(from);
    if (!source.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        throw refusal(source.errorString());
    QFile target(to);
    if (!target.open(QIODevice::NewOnly | QIODevice::WriteOnly | QIODevice::Unbuffered))
        throw HVError(HVError::Kind::Database, target.errorString(), SQLITE_CANTOPEN);

    for (;;) {
        const QByteArray piece = source.read(pieceSize);
        if (source.error() != QFile::NoError)
            throw refusal(source.errorString());
        if (piece.isEmpty())
            return;
        if (target.write(piece) != piece.size())
            throw HVError(HVError::Kind::Database, target.errorString(), SQLITE_FULL);
    }
}

// Whether a table of ours is more than a table, or less: a view, a virtual table, one that computes
// something when it is read or written to, one whose rows go with those of another. None of that is
// our doing, and a computation in a file can be made to take years.
bool isOfAnotherKind(const SQLiteDB &db)
{
    return db
        .query(uR"(
            SELECT COUNT(*) AS strange FROM pragma_table_list AS t
            WHERE t.schema = 'main'
                AND lower(t.name) IN ('meta', 'progress', 'quiz_results', 'notes', 'bookmarks')
                AND (t.type <> 'table'
                    OR EXISTS (SELECT 1 FROM pragma_table_xinfo(t.name)
                               WHERE hidden <> 0 OR instr(dflt_value, '(') > 0)
                    OR EXISTS (SELECT 1 FROM pragma_foreign_key_list(t.name))
                    OR EXISTS (SELECT 1 FROM pragma_index_list(t.name) AS i
                               WHERE i.partial
                                   OR EXISTS (SELECT 1 FROM pragma_index_xinfo(i.name)
                                              WHERE cid = -2)))
        )"_s)
        .first()
        .boolean(u"strange"_s);
}

// Whether reading a table comes to no end, since its tree of pages has been made to lead back to
// itself. Other damage is no reason to keep users from the rest of their file.
bool isEndless(const SQLiteDB &db)
{
    for (const QString &sql : { u"SELECT COUNT(lesson_id), SUM(completed) FROM progress"_s,
             u"SELECT COUNT(lesson_id) FROM progress"_s, u"SELECT SUM(taken) FROM quiz_results"_s,
             u"SELECT SUM(updated) FROM notes"_s, u"SELECT SUM(created) FROM bookmarks"_s }) {
        try {
            static_cast<void>(db.query(sql));
        } catch (const HVError &error) {
            if (error.sqliteCode() == SQLITE_INTERRUPT)
                return true;
        }
    }
    return false;
}

const QString kForeign = u"the file belongs to another program"_s;
const QString kEndless = u"a table of the file has no end"_s;

// SQLite can be made to do anything by the wrong tables, and to read for ever by the right ones.
void requireOrdinaryTables(const SQLiteDB &db)
{
    if (isOfAnotherKind(db))
        throw refusal(kForeign);
    if (isEndless(db))
        throw refusal(kEndless);
}

// The folder for temporary files, if it is there. Beside the file there is room whenever the file
// itself can grow.
QStringList placesForCopies(const QString &path)
{
    QStringList places{ QDir::tempPath(), QFileInfo(path).absolutePath() };
    places.removeAll(QString()); // what Qt says where the folder is set to one that isn't there
    return places;
}

// A process that is killed as it rehearses leaves a copy of everything that its user has written.
// Only what a rehearsal makes is taken away, and no sooner than any rehearsal has ended.
void removeAbandonedCopies(const QString &place)
{
    const QDateTime anHourAgo = QDateTime::currentDateTimeUtc().addSecs(-60 * 60);
    const QFileInfoList folders = QDir(place).entryInfoList(
        { kScratch + u'*' }, QDir::Dirs | QDir::NoSymLinks | QDir::NoDotAndDotDot);
    for (const QFileInfo &info : folders) {
        if (info.lastModified() > anHourAgo)
            continue;
        const QDir folder(info.filePath());
        for (const QString &suffix : kFiles)
            QFile::remove(folder.filePath(kCopy + suffix));
        QDir(place).rmdir(info.fileName());
    }
}

void rehearseIn(const QString &place, const QString &path)
{
    const QTemporaryDir scratch(place + u'/' + kScratch + u"XXXXXX"_s); // its owner's alone
    if (!scratch.isValid())
        throw HVError(HVError::Kind::Database, scratch.errorString(), SQLITE_CANTOPEN);

    const QString copy = scratch.filePath(kCopy);
    for (const QString &suffix : kContents) {
        if (QFileInfo::exists(path + suffix))
            copyFile(path + suffix, copy + suffix);
    }
    requireOrdinaryTables(SQLiteDB(copy));
    static_cast<void>(UserStore(QUrl::fromLocalFile(copy)));
    // A journal tells how large the file was, and SQLite makes it so: terabytes of nothing.
    if (QFileInfo(copy).size() > kLargestCopy)
        throw refusal(u"the changes beside the file are not its own"_s);
}

// What a look at the file can tell where no copy can be made: whether it has a table that the
// opening would stumble over only after it has written, since that indexes two columns of notes and
// adds a row of two to meta, or one that isn't ordinary. It finds less than a rehearsal does, but a
// full disk is no reason to keep users from their own file.
void lookAtTables(const QString &path)
{
    std::optional<HVError> objection;
    try {
        const SQLiteDB file(path, SQLiteDB::Access::Immutable);
        const QList<SQLRow> answer = file.query(uR"(
            SELECT (SELECT COUNT(*) FROM pragma_table_info('notes')) > 0
                   AND (SELECT COUNT(*) FROM pragma_table_info('notes')
                        WHERE name IN ('target_type', 'target_id')) < 2
                   OR (SELECT COUNT(*) FROM pragma_table_info('meta')) NOT IN (0, 2) AS clashes
        )"_s);
        if (answer.first().boolean(u"clashes"_s) || isOfAnotherKind(file))
            objection = refusal(kForeign);
        else if (isEndless(file))
            objection = refusal(kEndless);
    } catch (const HVError &) {
        // Either the file is whole only together with the changes beside it, which the look leaves
        // out, or it is damaged, and then the opening fails as it reads, before it writes.
        return;
    }
    if (objection)
        throw *objection;
}

void rehearse(const QString &path)
{
    if (QFileInfo(path).size() < kHeaderSize)
        throw refusal(u"file is not a database"_s);

    qint64 size = 0;
    for (const Stamp &stamp : stamps(path))
        size += stamp.size;

    if (size <= kLargestCopy) {
        for (const QString &place : placesForCopies(path)) {
            try {
                return rehearseIn(place, path);
            } catch (const HVError &error) {
                if (!isTroubleOfPlace(error))
                    throw;
            }
        }
    }
    lookAtTables(path);
}

// What speaks against opening what is there.
std::optional<HVError> objectionTo(const QString &path)
{
    try {
        // In this order: a process that is just creating the file writes to it before it has a
        // "-wal".
        const bool hasWal = hasContent(path + kWal);
        if (hasContent(path)) {
            rehearse(path);
        } else if (hasWal) {
            // SQLite deletes the changes that have lost their file. They may be all that is left of
            // it.
            throw refusal(u"the file is empty, but changes that belong to it are there"_s);
        }
        return std::nullopt;
    } catch (const HVError &error) {
        return error;
    }
}

QStringList presentFiles(const QString &path)
{
    QStringList files;
    for (const QString &suffix : kFiles) {
        if (QFileInfo::exists(path + suffix))
            files.append(path + suffix);
    }
    return files;
}

// A disk without room lets SQLite make the files and not fill them. What an opening that failed has
// left is taken away again, unless it holds something or another process is at work there.
std::unique_ptr<UserStore> openedOrUntouched(const QUrl &url, const QString &path)
{
    const QStringList before = presentFiles(path);
    try {
        return std::make_unique<UserStore>(url);
    } catch (const HVError &error) {
        QStringList added = presentFiles(path);
        added.removeIf([&before](const QString &file) { return before.contains(file); });
        const bool holdsSomething = (added.contains(path) && QFileInfo(path).size() > kPageSize)
            || (added.contains(path + kWal) && hasContent(path + kWal));
        if (!holdsSomething && error.sqliteCode() != SQLITE_BUSY) {
            for (const QString &file : added)
                QFile::remove(file);
        }
        throw;
    }
}

} // namespace

std::unique_ptr<UserStore> Store::openProgressFile(const QUrl &url)
{
    const QFileInfo info(url.toLocalFile());
    // SQLite follows a link and has the companions beside the file that it leads to.
    const QString path = info.exists() ? info.canonicalFilePath()
        : info.isSymLink()             ? info.symLinkTarget()
                                       : info.filePath();
    requireWritableFiles(path);
    for (const QString &place : placesForCopies(path))
        removeAbandonedCopies(place);
    const OwnersOnly ownersOnly; // copies too

    // The copy of a file that another process is writing to may be torn, and the file itself may be
    // empty while that process takes back what a killed one has begun. It writes at the pace of a
    // person, so soon the file holds still.
    std::optional<HVError> objection;
    QList<Stamp> before;
    for (int look = 0; look < kMostLooks && stamps(path) != before; ++look) {
        before = stamps(path);
        objection = objectionTo(path);
    }
    if (objection)
        throw *objection;
    return openedOrUntouched(url, path);
}
