#include "store/progressfiletrial.h"

#include "content/contentlibrary.h"
#include "store/rehearsal.h"
#include "store/userstore.h"
#include "support/fuzz.h"

using namespace Qt::StringLiterals;
using Fuzz::expect;

namespace {

const QStringList kCompanions{ u"-wal"_s, u"-shm"_s, u"-journal"_s };

// Whether SQLite finds nothing wrong, looked up without leaving a trace.
bool isSound(const QString &path)
{
    try {
        const SQLiteDB db(path, SQLiteDB::Access::Immutable);
        const QList<SQLRow> answer = db.query(u"PRAGMA integrity_check"_s);
        return answer.size() == 1 && answer.first().str(u"integrity_check"_s) == "ok"_L1;
    } catch (const HVError &) {
        return false;
    }
}

void readAll(const UserStore &store)
{
    static const ContentLibrary nothing{ u"no such folder"_s };

    const QList<Note> notes = store.notes();
    static_cast<void>(store.noteStamps());
    for (const Note &note : notes.first(qMin<qsizetype>(notes.size(), 20))) {
        static_cast<void>(store.note(note.id));
        static_cast<void>(store.notes(note.targetType, note.targetID));
    }
    const QList<QuizResult> results = store.quizResults();
    for (const QuizResult &result : results.first(qMin<qsizetype>(results.size(), 20)))
        static_cast<void>(store.bestScore(result.moduleID));
    const QList<Bookmark> bookmarks = store.bookmarks();
    for (const Bookmark &bookmark : bookmarks.first(qMin<qsizetype>(bookmarks.size(), 20)))
        static_cast<void>(store.isBookmarked(bookmark.targetType, bookmark.targetID));
    static_cast<void>(store.completedLessons());
    static_cast<void>(store.digest());
    const QString text = store.exportText(nothing);
    for (const Note &note : notes)
        expect(text.contains(note.body), "each note is exported");
}

// Each kind of write: it is done, or it is refused in words.
void writeAll(UserStore &store, bool isSound)
{
    const auto attempt = [](const auto &write) {
        const std::optional<HVError> refusal = StoreTesting::errorOf(write);
        expect(!refusal || !refusal->description().isEmpty(), "a refusal has words");
    };
    Note note{ .targetType = u"general"_s, .targetID = u"general"_s, .body = u"f/8"_s };
    attempt([&] { store.save(note); });
    if (note.id != 0) {
        if (isSound) {
            const std::optional<Note> saved = store.note(note.id);
            expect(saved && saved->body == note.body, "what was saved is there");
        }
        attempt([&] { store.deleteNote(note.id); });
    }
    attempt([&] { store.setComplete(u"m01.1"_s, true); });
    attempt([&] { store.saveQuiz(u"m01"_s, 4, 5, QDateTime::currentDateTimeUtc()); });
    attempt([&] { store.setBookmark(u"gear"_s, u"tripod"_s, true); });
}

// What else is in the folder.
StoreTesting::Fingerprint others(const StoreTesting::Folder &folder)
{
    StoreTesting::Fingerprint entries = StoreTesting::fingerprint(folder.path());
    entries.remove(StoreTesting::kProgressFile);
    for (const QString &companion : kCompanions)
        entries.remove(StoreTesting::kProgressFile + companion);
    return entries;
}

} // namespace

std::optional<HVError> StoreTesting::tryProgressFile(const Folder &folder)
{
    const QString path = folder.path(kProgressFile);
    const Fingerprint before = fingerprint(folder.path());
    const Fingerprint othersBefore = others(folder);
    // With changes beside it a file is more than itself.
    const bool wasSound = before.size() == othersBefore.size() + 1 && isSound(path);

    std::optional<HVError> refusal;
    std::unique_ptr<UserStore> store;
    try {
        store = Store::openProgressFile(folder.url(kProgressFile));
    } catch (const HVError &error) {
        expect(error.kind() == HVError::Kind::Database && !error.description().isEmpty(),
            "a refusal has words");
        expect(fingerprint(folder.path()) == before, "what can't be opened keeps every byte");
        refusal = error;
    }
    if (store) {
        readAll(*store);
        writeAll(*store, wasSound);
        store.reset();
        expect(!wasSound || isSound(path), "a sound file stays sound");
    }
    expect(others(folder) == othersBefore, "no other file comes or goes");
    return refusal;
}
