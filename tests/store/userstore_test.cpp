#include "store/userstore.h"

#include "store/storetesting.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace StoreTesting;

namespace {

constexpr QFile::Permissions kOwnerOnly
    = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;

const HVError kScoreRange(
    HVError::Kind::Invalid, u"A quiz score must be between 0 and the number of questions."_s);
const HVError kNoteEmpty(HVError::Kind::Invalid, u"A note can't be empty."_s);
const HVError kNoteTooLong(HVError::Kind::Invalid,
    u"That note is very long (over 20,000 characters). Please split it into two notes."_s);
const HVError kNotFound(HVError::Kind::NotFound);

QDateTime at(int day, int millisecond = 0)
{
    return QDateTime(QDate(2026, 10, day), QTime(12, 0, 0, millisecond), Qt::UTC);
}

Note noteOn(const QString &targetType, const QString &targetID, const QString &body)
{
    Note note;
    note.targetType = targetType;
    note.targetID = targetID;
    note.body = body;
    return note;
}

class UserStoreTest : public ::testing::Test
{
protected:
    // A second connection to the file: to look at it, or to change it as another process would.
    [[nodiscard]] SQLiteDB file() const { return SQLiteDB(folder.path(u"Progress.sqlite"_s)); }

    [[nodiscard]] qint64 rowCount(const QString &table) const
    {
        return file().scalarInt(u"SELECT COUNT(*) FROM "_s + table);
    }

    // The store's own count of its announcements.
    void SetUp() override
    {
        QObject::connect(&store, &UserStore::revisionChanged, &store, [this] { ++announced; });
    }

    void expectNoChange() const
    {
        EXPECT_EQ(store.revision(), 0);
        EXPECT_EQ(announced, 0);
    }
    void expectChanges(int count) const
    {
        EXPECT_EQ(store.revision(), count);
        EXPECT_EQ(announced, count);
    }

    Folder folder;
    UserStore store{ folder.url(u"Progress.sqlite"_s) };
    int announced = 0;
};

} // namespace

TEST(UserStore, CreatesTheFoldersAboveTheFile)
{
    const Folder folder;
    const UserStore store(folder.url(u"some/where/new/Progress.sqlite"_s));
    EXPECT_TRUE(QFileInfo(folder.path(u"some/where/new/Progress.sqlite"_s)).isFile());
    EXPECT_EQ(store.url(), folder.url(u"some/where/new/Progress.sqlite"_s));
}

TEST(UserStore, MakesANewFileWithTheWholeSchema)
{
    const Folder folder;
    const UserStore store(folder.url(u"Progress.sqlite"_s));

    const SQLiteDB file(folder.path(u"Progress.sqlite"_s));
    QStringList definitions;
    for (const SQLRow &row : file.query(
             u"SELECT sql FROM sqlite_schema WHERE name NOT LIKE 'sqlite_%' ORDER BY rowid"_s))
        definitions.append(row.str(u"sql"_s));
    EXPECT_EQ(definitions,
        (QStringList{
            u"CREATE TABLE meta (key TEXT PRIMARY KEY, value TEXT)"_s,
            u"CREATE TABLE progress (lesson_id TEXT PRIMARY KEY, completed REAL NOT NULL)"_s,
            u"CREATE TABLE quiz_results (id INTEGER PRIMARY KEY AUTOINCREMENT, module_id TEXT NOT "
            "NULL, score INTEGER NOT NULL, total INTEGER NOT NULL, taken REAL NOT NULL)"_s,
            u"CREATE TABLE notes (id INTEGER PRIMARY KEY AUTOINCREMENT, target_type TEXT NOT NULL, "
            "target_id TEXT NOT NULL, body TEXT NOT NULL, created REAL NOT NULL, updated REAL NOT "
            "NULL)"_s,
            u"CREATE TABLE bookmarks (target_type TEXT NOT NULL, target_id TEXT NOT NULL, created "
            "REAL NOT NULL, PRIMARY KEY (target_type, target_id))"_s,
            u"CREATE INDEX notes_target ON notes(target_type, target_id)"_s,
        }));

    const QList<SQLRow> meta = file.query(u"SELECT * FROM meta"_s);
    ASSERT_EQ(meta.size(), 1);
    EXPECT_EQ(meta.first().str(u"key"_s), u"schema"_s);
    EXPECT_EQ(meta.first().values.value(u"value"_s), SQLValue(u"1"_s));
    EXPECT_EQ(file.query(u"PRAGMA journal_mode"_s).first().str(u"journal_mode"_s), u"wal"_s);
}

TEST(UserStore, MakesANewFileAndItsCompanionsForTheOwnerOnly)
{
    const Folder folder;
    const UserStore store(folder.url(u"Progress.sqlite"_s));
    for (const QString &name :
        { u"Progress.sqlite"_s, u"Progress.sqlite-wal"_s, u"Progress.sqlite-shm"_s })
        EXPECT_EQ(QFile::permissions(folder.path(name)), kOwnerOnly) << qPrintable(name);
}

TEST(UserStore, MakesANewFileBehindALinkForTheOwnerOnly)
{
    const Folder folder;
    ASSERT_TRUE(QFile::link(folder.path(u"Real.sqlite"_s), folder.path(u"Link.sqlite"_s)));
    const UserStore store(folder.url(u"Link.sqlite"_s));
    EXPECT_EQ(QFile::permissions(folder.path(u"Real.sqlite"_s)), kOwnerOnly);
}

TEST(UserStore, MakesNewFoldersForTheOwnerOnly)
{
    const Folder folder;
    const UserStore store(folder.url(u"some/where/Progress.sqlite"_s));
    for (const QString &name : { u"some"_s, u"some/where"_s })
        EXPECT_EQ(
            QFile::permissions(folder.path(name)), kOwnerOnly | QFile::ExeOwner | QFile::ExeUser)
            << qPrintable(name);
}

TEST(UserStore, LeavesTheRightsOfAFileThatExists)
{
    const Folder folder;
    const QString path = folder.path(u"Progress.sqlite"_s);
    writeFile(path, {});
    QFile::setPermissions(path, kOwnerOnly | QFile::ReadGroup);
    const UserStore store(folder.url(u"Progress.sqlite"_s));
    EXPECT_EQ(QFile::permissions(path), kOwnerOnly | QFile::ReadGroup);
}

TEST(UserStore, FailsWhereNoFileCanBe)
{
    const Folder folder;
    writeFile(folder.path(u"file"_s), "in the way");
    ASSERT_TRUE(QDir().mkdir(folder.path(u"folder"_s)));
    const Fingerprint before = fingerprint(folder.path());

    const HVError expected(HVError::Kind::Database, u"unable to open database file"_s);
    EXPECT_EQ(errorOf([&] { UserStore(folder.url(u"file/Progress.sqlite"_s)); }), expected);
    EXPECT_EQ(errorOf([&] { UserStore(folder.url(u"folder"_s)); }), expected);
    EXPECT_EQ(fingerprint(folder.path()), before);
}

TEST(UserStore, FailsForAnAddressThatIsNoFile)
{
    EXPECT_TRUE(errorOf([] { UserStore{ QUrl() }; }));
    EXPECT_TRUE(errorOf([] { UserStore{ QUrl(u"https://corvane.example/notes"_s) }; }));
}

TEST(UserStore, FailsForATextFileAndLeavesItsBytes)
{
    const Folder folder;
    writeFile(folder.path(u"Progress.sqlite"_s), "Dear diary, today I learned about f-stops.");
    const Fingerprint before = fingerprint(folder.path());
    EXPECT_EQ(errorOf([&] { UserStore(folder.url(u"Progress.sqlite"_s)); }),
        HVError(HVError::Kind::Database, u"file is not a database"_s));
    EXPECT_EQ(fingerprint(folder.path()), before);
}

TEST(UserStore, KeepsEverythingWhenOpenedAgain)
{
    const Folder folder;
    const QUrl url = folder.url(u"Progress.sqlite"_s);
    Note note = noteOn(u"lesson"_s, u"m01.1"_s, u"Bigger hole, smaller f-number."_s);
    QList<Bookmark> bookmarks;
    {
        UserStore store(url);
        store.setComplete(u"m01.1"_s, true);
        store.saveQuiz(u"m01"_s, 5, 6, at(1));
        store.setBookmark(u"gear"_s, u"tripod"_s, true);
        store.save(note);
        bookmarks = store.bookmarks();
    }
    const Fingerprint closed = fingerprint(folder.path());
    {
        const UserStore store(url);
        EXPECT_EQ(store.completedLessons(), QSet<QString>{ u"m01.1"_s });
        EXPECT_EQ(store.quizResults(),
            (QList<QuizResult>{
                { .id = 1, .moduleID = u"m01"_s, .score = 5, .total = 6, .taken = at(1) } }));
        EXPECT_EQ(store.bookmarks(), bookmarks);
        EXPECT_EQ(store.notes(), QList<Note>{ note });
        EXPECT_EQ(store.revision(), 0);
    }
    EXPECT_EQ(fingerprint(folder.path()), closed);
}

TEST(UserStore, IsSharedOnceSet)
{
    const Folder folder;
    EXPECT_EQ(UserStore::shared(), nullptr);
    auto store = std::make_unique<UserStore>(folder.url(u"Progress.sqlite"_s));
    UserStore *const address = store.get();
    UserStore::setShared(std::move(store));
    EXPECT_EQ(UserStore::shared(), address);
    UserStore::setShared(nullptr);
    EXPECT_EQ(UserStore::shared(), nullptr);
}

TEST_F(UserStoreTest, FinishesALesson)
{
    EXPECT_FALSE(store.isComplete(u"m01.1"_s));
    store.setComplete(u"m01.1"_s, true);
    store.setComplete(u"m03.2"_s, true);
    EXPECT_TRUE(store.isComplete(u"m01.1"_s));
    EXPECT_FALSE(store.isComplete(u"m01"_s));
    EXPECT_EQ(store.completedLessons(), (QSet<QString>{ u"m01.1"_s, u"m03.2"_s }));
    expectChanges(2);
}

TEST_F(UserStoreTest, FinishingALessonAgainMovesItsDate)
{
    store.setComplete(u"m01.1"_s, true);
    file().run(u"UPDATE progress SET completed = ?"_s, { at(1) });
    const QDateTime before = QDateTime::currentDateTimeUtc();
    store.setComplete(u"m01.1"_s, true);

    const QList<SQLRow> rows = file().query(u"SELECT completed FROM progress"_s);
    ASSERT_EQ(rows.size(), 1);
    EXPECT_GE(*rows.first().real(u"completed"_s), *SQLValue(before).real());
}

TEST_F(UserStoreTest, TakesBackALesson)
{
    store.setComplete(u"m01.1"_s, true);
    store.setComplete(u"m01.1"_s, false);
    EXPECT_FALSE(store.isComplete(u"m01.1"_s));
    EXPECT_TRUE(store.completedLessons().isEmpty());
    expectChanges(2);
}

TEST_F(UserStoreTest, TakesBackALessonThatIsNotFinished)
{
    store.setComplete(u"m01.1"_s, false);
    EXPECT_EQ(rowCount(u"progress"_s), 0);
    expectChanges(1);
}

TEST_F(UserStoreTest, RefusesAScoreOutsideTheQuiz)
{
    const struct {
        int score, total;
    } refused[]{ { 6, 5 }, { -1, 5 }, { 0, 0 }, { 0, -1 }, { -2, -1 } };
    for (const auto &quiz : refused) {
        EXPECT_EQ(
            errorOf([&] { store.saveQuiz(u"m01"_s, quiz.score, quiz.total, at(1)); }), kScoreRange);
    }
    EXPECT_EQ(rowCount(u"quiz_results"_s), 0);
    expectNoChange();
}

TEST_F(UserStoreTest, AcceptsTheScoresAtBothEnds)
{
    store.saveQuiz(u"m01"_s, 0, 5, at(1));
    store.saveQuiz(u"m01"_s, 5, 5, at(2));
    store.saveQuiz(u"m01"_s, 0, 1, at(3));
    EXPECT_EQ(rowCount(u"quiz_results"_s), 3);
    expectChanges(3);
}

TEST_F(UserStoreTest, RefusesAQuizWithoutADate)
{
    EXPECT_TRUE(errorOf([&] { store.saveQuiz(u"m01"_s, 1, 5, QDateTime()); }));
    EXPECT_EQ(rowCount(u"quiz_results"_s), 0);
    expectNoChange();
}

TEST_F(UserStoreTest, KeepsEveryAttemptAndListsTheLatestFirst)
{
    store.saveQuiz(u"m01"_s, 3, 5, at(2));
    store.saveQuiz(u"m02"_s, 4, 6, at(3));
    store.saveQuiz(u"m01"_s, 3, 5, at(1, 789));

    const QuizResult second{
        .id = 1, .moduleID = u"m01"_s, .score = 3, .total = 5, .taken = at(2)
    };
    const QuizResult third{ .id = 2, .moduleID = u"m02"_s, .score = 4, .total = 6, .taken = at(3) };
    const QuizResult first{
        .id = 3, .moduleID = u"m01"_s, .score = 3, .total = 5, .taken = at(1, 789)
    };
    EXPECT_EQ(store.quizResults(), (QList<QuizResult>{ third, second, first }));
    EXPECT_EQ(store.quizResults(u"m01"_s), (QList<QuizResult>{ second, first }));
    EXPECT_TRUE(store.quizResults(u"m03"_s).isEmpty());
    EXPECT_TRUE(store.quizResults(u""_s).isEmpty());
}

TEST_F(UserStoreTest, ReadsADateBackToTheMillisecond)
{
    // Divided by 1000 and multiplied again, these come out just below the whole number.
    for (const qint64 milliseconds : { 1091638314475, 2153067952753 }) {
        const QDateTime taken = QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC);
        store.saveQuiz(u"m01"_s, 3, 5, taken);
        EXPECT_EQ(store.quizResults().constFirst().taken, taken);
    }
}

TEST_F(UserStoreTest, BestScoreOfAModuleWithoutAttemptsIsNone)
{
    store.saveQuiz(u"m01"_s, 5, 5, at(1));
    EXPECT_FALSE(store.bestScore(u"m02"_s));
}

TEST_F(UserStoreTest, BestScoreIsTheHighestShareAndNotTheHighestNumber)
{
    store.saveQuiz(u"m01"_s, 5, 5, at(1));
    store.saveQuiz(u"m01"_s, 9, 10, at(2));
    store.saveQuiz(u"m02"_s, 6, 6, at(3));
    ASSERT_TRUE(store.bestScore(u"m01"_s));
    EXPECT_EQ(store.bestScore(u"m01"_s)->total, 5);
}

TEST_F(UserStoreTest, BestScoreOfEqualSharesIsTheLatest)
{
    store.saveQuiz(u"m01"_s, 4, 5, at(1));
    store.saveQuiz(u"m01"_s, 8, 10, at(2));
    store.saveQuiz(u"m02"_s, 8, 10, at(1));
    store.saveQuiz(u"m02"_s, 4, 5, at(2));
    EXPECT_EQ(store.bestScore(u"m01"_s)->total, 10);
    EXPECT_EQ(store.bestScore(u"m02"_s)->total, 5);
}

TEST_F(UserStoreTest, BestScoreOfNothingRightIsStillAResult)
{
    store.saveQuiz(u"m01"_s, 0, 5, at(1));
    ASSERT_TRUE(store.bestScore(u"m01"_s));
    EXPECT_EQ(store.bestScore(u"m01"_s)->score, 0);
}

TEST_F(UserStoreTest, SetsAndRemovesABookmark)
{
    store.setBookmark(u"gear"_s, u"tripod"_s, true);
    EXPECT_TRUE(store.isBookmarked(u"gear"_s, u"tripod"_s));
    EXPECT_FALSE(store.isBookmarked(u"video"_s, u"tripod"_s));
    EXPECT_FALSE(store.isBookmarked(u"gear"_s, u"monopod"_s));

    store.setBookmark(u"gear"_s, u"tripod"_s, false);
    EXPECT_FALSE(store.isBookmarked(u"gear"_s, u"tripod"_s));
    store.setBookmark(u"gear"_s, u"tripod"_s, false);
    expectChanges(3);
}

TEST_F(UserStoreTest, SettingABookmarkTwiceLeavesOneWithTheFirstDate)
{
    store.setBookmark(u"gear"_s, u"tripod"_s, true);
    file().run(u"UPDATE bookmarks SET created = ?"_s, { at(1) });
    store.setBookmark(u"gear"_s, u"tripod"_s, true);
    EXPECT_EQ(store.bookmarks(),
        (QList<Bookmark>{
            { .targetType = u"gear"_s, .targetID = u"tripod"_s, .created = at(1) } }));
    expectChanges(2);
}

TEST_F(UserStoreTest, ListsTheNewestBookmarkFirst)
{
    for (const auto &[id, day] :
        { std::pair(u"a"_s, 2), std::pair(u"b"_s, 3), std::pair(u"c"_s, 1) }) {
        store.setBookmark(u"gear"_s, id, true);
        file().run(u"UPDATE bookmarks SET created = ? WHERE target_id = ?"_s, { at(day), id });
    }
    QStringList ids;
    for (const Bookmark &bookmark : store.bookmarks())
        ids.append(bookmark.targetID);
    EXPECT_EQ(ids, (QStringList{ u"b"_s, u"a"_s, u"c"_s }));
}

TEST_F(UserStoreTest, SavesANewNoteAndCompletesTheCallersCopy)
{
    Note note = noteOn(u"lesson"_s, u"m01.1"_s, u" \t\r\n Mind the horizon.\n indented \u2028"_s);
    note.created = at(1); // a new note is created now, whatever it says
    const QDateTime before = QDateTime::currentDateTimeUtc();
    store.save(note);

    EXPECT_EQ(note.id, 1);
    EXPECT_EQ(note.body, u"Mind the horizon.\n indented"_s);
    EXPECT_GE(note.created, before);
    EXPECT_EQ(note.updated, note.created);
    EXPECT_EQ(store.notes(), QList<Note>{ note });
    expectChanges(1);
}

TEST_F(UserStoreTest, SavesAChangedNoteInItsPlace)
{
    Note note = noteOn(u"lesson"_s, u"m01.1"_s, u"first thought"_s);
    Note other = noteOn(u"lesson"_s, u"m01.1"_s, u"another note"_s);
    store.save(note);
    store.save(other);
    file().run(u"UPDATE notes SET created = ?, updated = ?"_s, { at(1), at(2) });

    note = store.notes().last().id == note.id ? store.notes().last() : store.notes().first();
    note.body = u"second thought "_s;
    store.save(note);

    EXPECT_EQ(note.body, u"second thought"_s);
    EXPECT_EQ(note.created, at(1));
    EXPECT_GT(note.updated, at(2));
    ASSERT_EQ(store.notes().size(), 2);
    EXPECT_EQ(store.notes().first(), note);
    EXPECT_EQ(store.notes().last().body, u"another note"_s);
    EXPECT_EQ(store.notes().last().updated, at(2));
    expectChanges(3);
}

TEST_F(UserStoreTest, RefusesANoteOfBlanks)
{
    for (const QString &body : { QString(), u" "_s, u" \t\n\r\u00A0\u3000\u2029 "_s }) {
        Note note = noteOn(u"general"_s, u"general"_s, body);
        const Note asked = note;
        EXPECT_EQ(errorOf([&] { store.save(note); }), kNoteEmpty);
        EXPECT_EQ(note, asked);
    }
    EXPECT_EQ(rowCount(u"notes"_s), 0);
    expectNoChange();
}

TEST_F(UserStoreTest, RefusesToEmptyANoteThatIsThere)
{
    Note note = noteOn(u"general"_s, u"general"_s, u"keep me"_s);
    store.save(note);
    Note emptied = note;
    emptied.body = u"  "_s;
    EXPECT_EQ(errorOf([&] { store.save(emptied); }), kNoteEmpty);
    EXPECT_EQ(store.notes(), QList<Note>{ note });
    expectChanges(1);
}

TEST_F(UserStoreTest, AcceptsANoteOf20000CharactersAndRefusesOneMore)
{
    Note longest = noteOn(u"general"_s, u"general"_s, QString(20000, u'x'));
    store.save(longest);

    Note longer = noteOn(u"general"_s, u"general"_s, QString(20001, u'x'));
    const Note asked = longer;
    EXPECT_EQ(errorOf([&] { store.save(longer); }), kNoteTooLong);
    EXPECT_EQ(longer, asked);
    EXPECT_EQ(store.notes(), QList<Note>{ longest });
    expectChanges(1);
}

TEST_F(UserStoreTest, DoesNotCountTheBlanksAroundANote)
{
    const QString blanks(500, u' ');
    Note note = noteOn(u"general"_s, u"general"_s, blanks + QString(20000, u'x') + blanks);
    store.save(note);
    EXPECT_EQ(store.notes().first().body, QString(20000, u'x'));
}

TEST_F(UserStoreTest, CountsTheCharactersOfANoteAsAReaderDoes)
{
    const QString accented = u"e\u0301"_s; // one character of two code units
    Note note = noteOn(u"general"_s, u"general"_s, accented.repeated(20000));
    store.save(note);
    EXPECT_EQ(store.notes().first().body, accented.repeated(20000));

    Note longer = noteOn(u"general"_s, u"general"_s, accented.repeated(20001));
    EXPECT_EQ(errorOf([&] { store.save(longer); }), kNoteTooLong);
}

TEST_F(UserStoreTest, KeepsANoteByteForByte)
{
    const QString bodies[]{
        u"Aperture = the hole. Bigger hole, smaller f-number. ✓ ünïcödé 写真 📷"_s,
        u"'); DROP TABLE notes; --"_s,
        u"<b>not bold</b> ? ?1 :name"_s,
        u"before\0after"_s,
        u"\uFEFFpasted with a byte order mark"_s,
        u"e\u0301 and \u00E9\r\nstay as they are"_s,
    };
    for (const QString &body : bodies) {
        Note note = noteOn(u"general"_s, u"general"_s, body);
        store.save(note);
        EXPECT_EQ(note.body, body);
        EXPECT_EQ(UserStore(store.url()).notes().constFirst().body, body);
        store.deleteNote(note.id);
    }
}

TEST_F(UserStoreTest, RefusesToUpdateADeletedNote)
{
    Note note = noteOn(u"general"_s, u"general"_s, u"soon gone"_s);
    store.save(note);
    file().exec(u"DELETE FROM notes"_s);

    note.body = u"too late "_s;
    const Note asked = note;
    const auto error = errorOf([&] { store.save(note); });
    ASSERT_EQ(error, kNotFound);
    EXPECT_EQ(error->description(), u"That record no longer exists."_s);
    EXPECT_EQ(note, asked);
    EXPECT_EQ(rowCount(u"notes"_s), 0);
    expectChanges(1);
}

TEST_F(UserStoreTest, DeletesANote)
{
    Note kept = noteOn(u"general"_s, u"general"_s, u"kept"_s);
    Note gone = noteOn(u"general"_s, u"general"_s, u"gone"_s);
    store.save(kept);
    store.save(gone);
    store.deleteNote(gone.id);
    EXPECT_EQ(store.notes(), QList<Note>{ kept });
    store.deleteNote(gone.id); // no failure
    expectChanges(4);
}

TEST_F(UserStoreTest, NeverGivesTheNumberOfADeletedNoteToAnother)
{
    Note first = noteOn(u"general"_s, u"general"_s, u"first"_s);
    store.save(first);
    store.deleteNote(first.id);
    Note second = noteOn(u"general"_s, u"general"_s, u"second"_s);
    store.save(second);
    EXPECT_NE(second.id, first.id);
}

TEST_F(UserStoreTest, ListsNotesOfOneTargetOrAllTheLastChangedFirst)
{
    Note notes[]{
        noteOn(u"lesson"_s, u"m01.1"_s, u"a"_s),
        noteOn(u"lesson"_s, u"m01.2"_s, u"b"_s),
        noteOn(u"gear"_s, u"m01.1"_s, u"c"_s),
        noteOn(u"lesson"_s, u"m01.1"_s, u"d"_s),
    };
    const int changedOn[]{ 3, 4, 1, 2 };
    for (int index = 0; index < 4; ++index) {
        store.save(notes[index]);
        file().run(u"UPDATE notes SET updated = ? WHERE id = ?"_s,
            { at(changedOn[index]), notes[index].id });
    }

    const auto bodies = [](const QList<Note> &found) {
        QString text;
        for (const Note &note : found)
            text += note.body;
        return text;
    };
    EXPECT_EQ(bodies(store.notes()), u"badc"_s);
    EXPECT_EQ(bodies(store.notes(u"lesson"_s, u"m01.1"_s)), u"ad"_s);
    EXPECT_EQ(bodies(store.notes(u"video"_s, u"m01.1"_s)), QString());
    EXPECT_EQ(bodies(store.notes(u"lesson"_s)), u"badc"_s);
    EXPECT_EQ(bodies(store.notes(std::nullopt, u"m01.1"_s)), u"badc"_s);

    QList<Note> oneByOne;
    for (const NoteStamp &stamp : store.noteStamps()) {
        oneByOne.append(store.note(stamp.id).value());
        EXPECT_EQ(oneByOne.last().updated, stamp.updated);
    }
    EXPECT_EQ(oneByOne, store.notes());
    EXPECT_FALSE(store.note(0));
}

TEST_F(UserStoreTest, ReadsNothingFromTablesThatAreGone)
{
    file().exec(u"DROP TABLE progress; DROP TABLE quiz_results; DROP TABLE bookmarks;"
                "DROP TABLE notes"_s);
    EXPECT_TRUE(store.completedLessons().isEmpty());
    EXPECT_FALSE(store.isComplete(u"m01.1"_s));
    EXPECT_TRUE(store.quizResults().isEmpty());
    EXPECT_FALSE(store.bestScore(u"m01"_s));
    EXPECT_TRUE(store.bookmarks().isEmpty());
    EXPECT_FALSE(store.isBookmarked(u"gear"_s, u"tripod"_s));
    EXPECT_TRUE(store.notes().isEmpty());
    EXPECT_TRUE(store.notes(u"gear"_s, u"tripod"_s).isEmpty());
    EXPECT_TRUE(store.noteStamps().isEmpty());
    EXPECT_FALSE(store.note(1));
}

TEST_F(UserStoreTest, FailsWritesToTablesThatAreGoneAndAnnouncesNothing)
{
    file().exec(u"DROP TABLE progress; DROP TABLE quiz_results; DROP TABLE bookmarks;"
                "DROP TABLE notes"_s);
    Note created = noteOn(u"general"_s, u"general"_s, u" a new note"_s);
    Note changed = created;
    changed.id = 7;
    const Note askedToCreate = created;
    const Note askedToChange = changed;

    EXPECT_TRUE(errorOf([&] { store.setComplete(u"m01.1"_s, true); }));
    EXPECT_TRUE(errorOf([&] { store.setComplete(u"m01.1"_s, false); }));
    EXPECT_TRUE(errorOf([&] { store.saveQuiz(u"m01"_s, 4, 5, at(1)); }));
    EXPECT_TRUE(errorOf([&] { store.setBookmark(u"gear"_s, u"tripod"_s, true); }));
    EXPECT_TRUE(errorOf([&] { store.setBookmark(u"gear"_s, u"tripod"_s, false); }));
    EXPECT_TRUE(errorOf([&] { store.save(created); }));
    EXPECT_TRUE(errorOf([&] { store.save(changed); }));
    EXPECT_TRUE(errorOf([&] { store.deleteNote(7); }));
    EXPECT_EQ(created, askedToCreate);
    EXPECT_EQ(changed, askedToChange);
    expectNoChange();
}

TEST_F(UserStoreTest, ShowsWhatAnotherStoreWrote)
{
    UserStore other(store.url());
    other.setBookmark(u"gear"_s, u"tripod"_s, true);
    EXPECT_TRUE(store.isBookmarked(u"gear"_s, u"tripod"_s));
    expectNoChange();
}
