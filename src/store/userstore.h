// Everything the program remembers about its user, in one SQLite file, the progress file: finished
// lessons, quiz scores, bookmarks and notes.
//
// Target hv_store. There is no cache: each read goes to the file, so another process's writes show
// at once. What a bookmark or note is about is a pair of texts, a type (one of ContentKind) and an
// id; nothing checks that the course still has it.
//
// Reads never fail outwards: what can't be read is empty, so that a damaged table doesn't take a
// screen down. Writes throw HVError and then have changed nothing, neither the file nor revision().
//
// Moments are stored in seconds since 1970-01-01 UTC, to the millisecond, and come back as UTC.
#pragma once

#include "store/sqlitedb.h"

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QSet>
#include <QString>
#include <QUrl>

#include <memory>
#include <optional>

class ContentLibrary;

/// What the user wrote, about one target.
struct Note {
    qint64 id = 0; ///< 0 for a note not yet saved.
    QString targetType;
    QString targetID;
    QString body;
    QDateTime created;
    QDateTime updated;

    friend bool operator==(const Note &, const Note &) = default;
};

/// What there is to know of a note before it is in sight.
struct NoteStamp {
    qint64 id = 0;
    QDateTime updated;

    friend bool operator==(const NoteStamp &, const NoteStamp &) = default;
};

struct Bookmark {
    QString targetType;
    QString targetID;
    QDateTime created;

    friend bool operator==(const Bookmark &, const Bookmark &) = default;
};

/// One attempt at a module's quiz: `score` right answers of `total`.
struct QuizResult {
    qint64 id = 0;
    QString moduleID;
    int score = 0;
    int total = 0;
    QDateTime taken;

    friend bool operator==(const QuizResult &, const QuizResult &) = default;
};

class UserStore : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int revision READ revision NOTIFY revisionChanged)
public:
    /// The longest note, in characters as a reader counts them.
    static constexpr qsizetype longestNote = 20000;

    /// Opens the progress file, creating it and the folders above it where they are missing; what
    /// is new is its owner's alone. Throws HVError if the file can't be opened, which may
    /// have changed it by then: Store::openProgressFile() is the way to open a file of unknown
    /// origin.
    explicit UserStore(const QUrl &url);

    /// The store of this process; null until one is set, and after null has been.
    [[nodiscard]] static UserStore *shared();
    static void setShared(std::unique_ptr<UserStore> store);

    /// The progress file.
    [[nodiscard]] QUrl url() const { return m_url; }

    /// Goes up by one after every successful write. The number itself means nothing.
    [[nodiscard]] int revision() const { return m_revision; }

    [[nodiscard]] QSet<QString> completedLessons() const;
    [[nodiscard]] bool isComplete(const QString &lessonID) const;

    /// Marks a lesson as finished now, again if it was already, or as not finished.
    void setComplete(const QString &lessonID, bool done);

    /// Adds an attempt; earlier ones stay. Refuses a score that is not between 0 and `total`, and a
    /// total below 1.
    void saveQuiz(const QString &moduleID, int score, int total, const QDateTime &taken);

    /// The attempts at one module's quiz, or at all, the most recent first.
    [[nodiscard]] QList<QuizResult> quizResults(
        const std::optional<QString> &moduleID = std::nullopt) const;

    /// The attempt with the highest share of right answers, the most recent of equal ones.
    [[nodiscard]] std::optional<QuizResult> bestScore(const QString &moduleID) const;

    /// All bookmarks, the newest first.
    [[nodiscard]] QList<Bookmark> bookmarks() const;
    [[nodiscard]] bool isBookmarked(const QString &targetType, const QString &targetID) const;

    /// Sets a bookmark, which keeps its first date if it stands already, or removes it.
    void setBookmark(const QString &targetType, const QString &targetID, bool on);

    /// The notes on one target, the last changed first; all notes unless both parts are given.
    [[nodiscard]] QList<Note> notes(const std::optional<QString> &targetType = std::nullopt,
        const std::optional<QString> &targetID = std::nullopt) const;

    /// The stamps of all notes in the order of notes(), for a list that reads a note when it comes
    /// into sight: of 50,000 notes the words take ten times as long.
    [[nodiscard]] QList<NoteStamp> noteStamps() const;

    /// The note with this id.
    [[nodiscard]] std::optional<Note> note(qint64 id) const;

    /// Saves a note as new if its id is 0, else the body of the note with that id. The body loses
    /// the blanks and line ends at both its ends. Afterwards `note` has the id, body and date of
    /// change that stand in the file, and a new one its date of creation too; an older one keeps
    /// the date of creation that it was handed in with, as it does its target. If the call throws,
    /// `note` is as it was. Refuses an empty body, one beyond longestNote, and an id that is no
    /// longer there (HVError::Kind::NotFound).
    void save(Note &note);

    /// Deletes a note; one that is gone already is no failure.
    void deleteNote(qint64 id);

    /// What a target is called, such as "Lesson: " and the lesson's title. Of what the course
    /// doesn't have, the id stands for the title; a type that is tied to nothing is a "General
    /// note".
    [[nodiscard]] static QString title(
        const QString &type, const QString &id, const ContentLibrary &library);

    /// All that the store holds but its dates, in one line that is the same for equal contents:
    /// lessons, quizzes, bookmarks and notes, such as
    /// "m01.1,m03.2#m01=5/6#gear:tripod#general:general:Buy a tripod.". "###" for an empty store.
    [[nodiscard]] QString digest() const;

    /// The same for its user to read and to carry away: progress by module, bookmarks and notes,
    /// with the dates of the notes' last changes.
    [[nodiscard]] QString exportText(const ContentLibrary &library) const;

Q_SIGNALS:
    void revisionChanged();

private:
    /// Each row of a statement as a record; none at all if it fails.
    template <typename Record>
    [[nodiscard]] QList<Record> records(Record make(const SQLRow &), const QString &sql,
        const QList<SQLValue> &arguments = {}) const;
    [[nodiscard]] QList<SQLRow> rows(const QString &sql) const;
    /// Runs a statement that writes, unless the file is no longer where it was.
    qint64 write(const QString &sql, const QList<SQLValue> &arguments);
    void raiseRevision();

    SQLiteDB m_db;
    QUrl m_url;
    int m_revision = 0;
};
