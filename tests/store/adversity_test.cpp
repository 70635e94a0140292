// What becomes of a note when the disk, the file or another program stand in its way: it is in the
// file, or it is still in the caller's hands and the reason is told.

#include "store/storetesting.h"
#include "store/userstore.h"

#include "support/filesizelimit.h"
#include "support/ordinaryuser.h"

#include <QFile>

#include <gtest/gtest.h>

#include <sqlite3.h>

#include <algorithm>
#include <future>

using namespace Qt::StringLiterals;
using namespace StoreTesting;

namespace {

class Adversity : public ::testing::Test
{
protected:
    [[nodiscard]] QString path() const { return folder.path(u"Progress.sqlite"_s); }

    // The bodies of all notes, as a fresh start finds them, in the order in which they came.
    [[nodiscard]] QStringList stored() const
    {
        QList<Note> notes = UserStore(folder.url(u"Progress.sqlite"_s)).notes();
        std::ranges::sort(notes, {}, &Note::id);
        QStringList bodies;
        for (const Note &note : notes)
            bodies.append(note.body);
        return bodies;
    }

    static Note noteOf(const QString &body)
    {
        return { .targetType = u"general"_s, .targetID = u"general"_s, .body = body };
    }

    void save(const QString &body)
    {
        Note note = noteOf(body);
        store->save(note);
    }

    const Folder folder;
    std::unique_ptr<UserStore> store
        = std::make_unique<UserStore>(folder.url(u"Progress.sqlite"_s));
};

} // namespace

TEST_F(Adversity, AFullDiskTakesNothingAwayAndTheNoteCanBeSavedLater)
{
    save(u"Before"_s);
    const Note asked = noteOf(QString(15'000, u'x'));
    Note note = asked;
    std::optional<HVError> error;
    {
        const FileSizeLimit full(QFile(path() + "-wal"_L1).size());
        error = errorOf([&] { store->save(note); });
    }
    ASSERT_TRUE(error);
    EXPECT_TRUE(error->description().startsWith(u"The database reported a problem: "_s));
    EXPECT_EQ(note, asked);
    EXPECT_EQ(stored(), QStringList{ u"Before"_s });

    store->save(note);
    EXPECT_EQ(stored(), (QStringList{ u"Before"_s, asked.body }));
}

TEST_F(Adversity, AWriteWaitsForAnotherProcessThatSoonLetsGo)
{
    Child other({ u"lock"_s, path() });
    ASSERT_EQ(other.line(), u"locked"_s);
    std::future<void> saved = std::async(std::launch::async, [this] { save(u"Patient"_s); });
    other.release();
    saved.get();
    EXPECT_EQ(stored(), QStringList{ u"Patient"_s });
}

TEST_F(Adversity, AWriteGivesUpOnAProcessThatKeepsTheFileAndSucceedsAfterIt)
{
    save(u"Before"_s);
    Child other({ u"lock"_s, path() });
    ASSERT_EQ(other.line(), u"locked"_s);

    const Note asked = noteOf(u"Patient"_s);
    Note note = asked;
    const std::optional<HVError> error = errorOf([&] { store->save(note); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->sqliteCode(), SQLITE_BUSY);
    EXPECT_EQ(error->description(), u"The database reported a problem: database is locked"_s);
    EXPECT_EQ(note, asked);
    // Reading goes on all the while.
    EXPECT_EQ(store->notes().size(), 1);

    other.release();
    EXPECT_TRUE(other.remainingLines().isEmpty());
    store->save(note);
    EXPECT_EQ(stored(), (QStringList{ u"Before"_s, u"Patient"_s }));
}

TEST_F(Adversity, AFileThatTurnsReadOnlyWhileItIsOpenKeepsWhatIsWritten)
{
    save(u"Before"_s);
    constexpr auto readable = QFile::ReadOwner | QFile::ReadGroup;
    QFile::setPermissions(folder.path(), readable | QFile::ExeOwner | QFile::ExeGroup);
    for (const QString &name : QStringList{ path(), path() + "-wal"_L1, path() + "-shm"_L1 })
        QFile::setPermissions(name, readable);
    {
        const OrdinaryUser user;
        save(u"After"_s);
    }
    QFile::setPermissions(folder.path(), readable | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(stored(), (QStringList{ u"Before"_s, u"After"_s }));
}

TEST_F(Adversity, NothingIsCalledSavedInAFileThatWasDeleted)
{
    save(u"Before"_s);
    ASSERT_TRUE(QFile::remove(path()));
    const Note asked = noteOf(u"After"_s);
    Note note = asked;
    const std::optional<HVError> error = errorOf([&] { store->save(note); });
    ASSERT_TRUE(error);
    EXPECT_TRUE(error->description().contains(u"was moved or deleted"_s));
    EXPECT_EQ(note, asked);
    EXPECT_TRUE(errorOf([&] { store->setComplete(u"m01.1"_s, true); }));
    EXPECT_TRUE(errorOf([&] { store->setBookmark(u"gear"_s, u"tripod"_s, true); }));
    EXPECT_TRUE(errorOf([&] { store->deleteNote(1); }));
    EXPECT_TRUE(errorOf([&] { store->saveQuiz(u"m01"_s, 1, 2, QDateTime::currentDateTimeUtc()); }));
    // What was there can still be read, and exported.
    EXPECT_EQ(store->notes().size(), 1);
    EXPECT_FALSE(QFile::exists(path()));
}

TEST_F(Adversity, AFileThatIsPutBackIsWrittenAgain)
{
    save(u"Before"_s);
    ASSERT_TRUE(QFile::rename(path(), folder.path(u"elsewhere"_s)));
    EXPECT_TRUE(errorOf([&] { save(u"Meanwhile"_s); }));
    ASSERT_TRUE(QFile::rename(folder.path(u"elsewhere"_s), path()));
    save(u"After"_s);
    EXPECT_EQ(stored(), (QStringList{ u"Before"_s, u"After"_s }));
}
