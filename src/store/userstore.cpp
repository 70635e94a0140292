#include "store/userstore.h"

#include "content/text.h"
#include "kit/ownersonly.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sqlite3.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <thread>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Executed by every opening: it makes what is missing and leaves the rest as it stands. The number
// of the schema is for later versions to read.
const QString kSchema = uR"(
PRAGMA journal_mode = WAL;
CREATE TABLE IF NOT EXISTS meta (key TEXT PRIMARY KEY, value TEXT);
CREATE TABLE IF NOT EXISTS progress (lesson_id TEXT PRIMARY KEY, completed REAL NOT NULL);
CREATE TABLE IF NOT EXISTS quiz_results (id INTEGER PRIMARY KEY AUTOINCREMENT, module_id TEXT NOT NULL, score INTEGER NOT NULL, total INTEGER NOT NULL, taken REAL NOT NULL);
CREATE TABLE IF NOT EXISTS notes (id INTEGER PRIMARY KEY AUTOINCREMENT, target_type TEXT NOT NULL, target_id TEXT NOT NULL, body TEXT NOT NULL, created REAL NOT NULL, updated REAL NOT NULL);
CREATE TABLE IF NOT EXISTS bookmarks (target_type TEXT NOT NULL, target_id TEXT NOT NULL, created REAL NOT NULL, PRIMARY KEY (target_type, target_id));
CREATE INDEX IF NOT EXISTS notes_target ON notes(target_type, target_id);
INSERT OR IGNORE INTO meta VALUES ('schema', '1');
)"_s;

const QString kQuizScoreRange = u"A quiz score must be between 0 and the number of questions."_s;
const QString kNoteEmpty = u"A note can't be empty."_s;
const QString kNoteTooLong
    = u"That note is very long (over 20,000 characters). Please split it into two notes."_s;

const QString kFileHasMoved
    = u"the progress file was moved or deleted while it was open. Put it back, or "
      "quit and start again; until then nothing can be saved."_s;

// SQLite would leave the rights of a new file to the umask; its companions take over the file's. A
// failure needs no answer: a file that exists keeps its rights, and a place where none can be made
// shows when SQLite opens it.
void createForOwnerOnly(const QString &path)
{
    const QFileInfo info(path);
    QFile file(info.isSymLink() ? info.symLinkTarget() : path);
    // Never an existing file: closing it would drop the locks that this process holds on it.
    static_cast<void>(
        file.open(QIODevice::NewOnly | QIODevice::WriteOnly, QFile::ReadOwner | QFile::WriteOwner));
}

SQLiteDB opened(const QString &path)
{
    SQLiteDB db(path);
    // A note that the program calls saved outlives a power cut. More than "full": the journal in
    // which a new file is made must not be back afterwards, to undo it and all that came later.
    db.exec(u"PRAGMA synchronous = EXTRA"_s);
    db.exec(kSchema);
    return db;
}

SQLiteDB openedForOwner(const QUrl &url)
{
    using namespace std::chrono_literals;

    const QString path = url.toLocalFile();
    if (path.isEmpty()) {
        // SQLite takes an empty path for a temporary database, and all that the user writes into it
        // would be gone at the end.
        throw HVError(HVError::Kind::Database, u"the address isn't that of a file"_s);
    }
    const OwnersOnly ownersOnly;
    QDir().mkpath(QFileInfo(path).path()); // if it fails, so does the opening
    createForOwnerOnly(path);

    // Where two processes open a new file at once, the switch to WAL and the first tables answer
    // "busy" without waiting for the other process as later statements do.
    const QDeadlineTimer deadline(SQLiteDB::busyTimeout);
    for (;;) {
        try {
            return opened(path);
        } catch (const HVError &error) {
            if (error.sqliteCode() != SQLITE_BUSY || deadline.hasExpired())
                throw;
        }
        std::this_thread::sleep_for(10ms);
    }
}

std::unique_ptr<UserStore> &sharedStore()
{
    static std::unique_ptr<UserStore> store;
    return store;
}

// Rounded, since the double nearest to a whole millisecond may lie just below it.
QDateTime moment(const SQLRow &row, const QString &column)
{
    const double seconds = row.real(column).value_or(0);
    return QDateTime::fromMSecsSinceEpoch(std::llround(seconds * 1000), Qt::UTC);
}

qint64 number(const SQLRow &row, const QString &column)
{
    return row.integer(column).value_or(0);
}

QuizResult quizResult(const SQLRow &row)
{
    return { .id = number(row, u"id"_s),
        .moduleID = row.str(u"module_id"_s),
        .score = int(number(row, u"score"_s)),
        .total = int(number(row, u"total"_s)),
        .taken = moment(row, u"taken"_s) };
}

Bookmark bookmark(const SQLRow &row)
{
    return { .targetType = row.str(u"target_type"_s),
        .targetID = row.str(u"target_id"_s),
        .created = moment(row, u"created"_s) };
}

Note savedNote(const SQLRow &row)
{
    return { .id = number(row, u"id"_s),
        .targetType = row.str(u"target_type"_s),
        .targetID = row.str(u"target_id"_s),
        .body = row.str(u"body"_s),
        .created = moment(row, u"created"_s),
        .updated = moment(row, u"updated"_s) };
}

NoteStamp noteStamp(const SQLRow &row)
{
    return { .id = number(row, u"id"_s), .updated = moment(row, u"updated"_s) };
}

double shareOfRightAnswers(const QuizResult &result)
{
    return double(result.score) / std::max(result.total, 1);
}

} // namespace

UserStore::UserStore(const QUrl &url)
    : m_db(openedForOwner(url))
    , m_url(url)
{ }

UserStore *UserStore::shared()
{
    return sharedStore().get();
}

void UserStore::setShared(std::unique_ptr<UserStore> store)
{
    sharedStore() = std::move(store);
}

QSet<QString> UserStore::completedLessons() const
{
    QSet<QString> lessons;
    for (const SQLRow &row : rows(u"SELECT lesson_id FROM progress"_s))
        lessons.insert(row.str(u"lesson_id"_s));
    return lessons;
}

bool UserStore::isComplete(const QString &lessonID) const
{
    return m_db.scalarInt(u"SELECT COUNT(*) FROM progress WHERE lesson_id = ?"_s, { lessonID }) > 0;
}

void UserStore::setComplete(const QString &lessonID, bool done)
{
    if (done) {
        write(u"INSERT OR REPLACE INTO progress VALUES (?, ?)"_s,
            { lessonID, QDateTime::currentDateTimeUtc() });
    } else {
        write(u"DELETE FROM progress WHERE lesson_id = ?"_s, { lessonID });
    }
    raiseRevision();
}

void UserStore::saveQuiz(const QString &moduleID, int score, int total, const QDateTime &taken)
{
    if (total < 1 || score < 0 || score > total)
        throw HVError(HVError::Kind::Invalid, kQuizScoreRange);
    write(u"INSERT INTO quiz_results (module_id, score, total, taken) VALUES (?,?,?,?)"_s,
        { moduleID, score, total, taken });
    raiseRevision();
}

QList<QuizResult> UserStore::quizResults(const std::optional<QString> &moduleID) const
{
    if (!moduleID)
        return records(quizResult, u"SELECT * FROM quiz_results ORDER BY taken DESC"_s);
    return records(quizResult,
        u"SELECT * FROM quiz_results WHERE module_id = ? ORDER BY taken DESC"_s, { *moduleID });
}

std::optional<QuizResult> UserStore::bestScore(const QString &moduleID) const
{
    // The first of the best, and so the most recent of them.
    const QList<QuizResult> results = quizResults(moduleID);
    const auto best = std::ranges::max_element(results, {}, shareOfRightAnswers);
    return best == results.end() ? std::nullopt : std::optional(*best);
}

QList<Bookmark> UserStore::bookmarks() const
{
    return records(bookmark, u"SELECT * FROM bookmarks ORDER BY created DESC"_s);
}

bool UserStore::isBookmarked(const QString &targetType, const QString &targetID) const
{
    return m_db.scalarInt(
               u"SELECT COUNT(*) FROM bookmarks WHERE target_type = ? AND target_id = ?"_s,
               { targetType, targetID })
        > 0;
}

void UserStore::setBookmark(const QString &targetType, const QString &targetID, bool on)
{
    if (on) {
        write(u"INSERT OR IGNORE INTO bookmarks VALUES (?,?,?)"_s,
            { targetType, targetID, QDateTime::currentDateTimeUtc() });
    } else {
        write(u"DELETE FROM bookmarks WHERE target_type = ? AND target_id = ?"_s,
            { targetType, targetID });
    }
    raiseRevision();
}

QList<Note> UserStore::notes(
    const std::optional<QString> &targetType, const std::optional<QString> &targetID) const
{
    if (!targetType || !targetID)
        return records(savedNote, u"SELECT * FROM notes ORDER BY updated DESC"_s);
    return records(savedNote,
        u"SELECT * FROM notes WHERE target_type = ? AND target_id = ? ORDER BY updated DESC"_s,
        { *targetType, *targetID });
}

QList<NoteStamp> UserStore::noteStamps() const
{
    return records(noteStamp, u"SELECT id, updated FROM notes ORDER BY updated DESC"_s);
}

std::optional<Note> UserStore::note(qint64 id) const
{
    const QList<Note> found = records(savedNote, u"SELECT * FROM notes WHERE id = ?"_s, { id });
    return found.isEmpty() ? std::nullopt : std::optional(found.constFirst());
}

void UserStore::save(Note &note)
{
    const QString body = Text::trimmedBlanksAndLines(note.body).toString();
    if (body.isEmpty())
        throw HVError(HVError::Kind::Invalid, kNoteEmpty);
    if (Text::characterCount(body) > longestNote)
        throw HVError(HVError::Kind::Invalid, kNoteTooLong);

    const QDateTime now = QDateTime::currentDateTimeUtc();
    if (note.id != 0) {
        write(u"UPDATE notes SET body = ?, updated = ? WHERE id = ?"_s, { body, now, note.id });
        if (m_db.changes() == 0)
            throw HVError(HVError::Kind::NotFound);
    } else {
        note.id = write(u"INSERT INTO notes (target_type, target_id, body, created, updated) "
                        "VALUES (?,?,?,?,?)"_s,
            { note.targetType, note.targetID, body, now, now });
        note.created = now;
    }
    note.body = body;
    note.updated = now;
    raiseRevision();
}

void UserStore::deleteNote(qint64 id)
{
    write(u"DELETE FROM notes WHERE id = ?"_s, { id });
    raiseRevision();
}

template <typename Record>
QList<Record> UserStore::records(
    Record make(const SQLRow &), const QString &sql, const QList<SQLValue> &arguments) const
{
    QList<Record> all;
    try {
        m_db.each(sql, arguments, [&](const SQLRow &row) { all.append(make(row)); });
    } catch (const HVError &) {
        return {}; // every caller is a display, and an empty one still lets the user write
    }
    return all;
}

QList<SQLRow> UserStore::rows(const QString &sql) const
{
    return records(
        +[](const SQLRow &row) { return row; }, sql);
}

qint64 UserStore::write(const QString &sql, const QList<SQLValue> &arguments)
{
    if (m_db.hasMoved())
        throw HVError(HVError::Kind::Database, kFileHasMoved);
    return m_db.run(sql, arguments);
}

void UserStore::raiseRevision()
{
    ++m_revision;
    Q_EMIT revisionChanged();
}
