// What the progress file holds after processes that share it, or that were killed.

#include "store/childnote.h"
#include "store/rehearsal.h"
#include "store/storetesting.h"
#include "store/userstore.h"
#include "store/watcheddisk.h"

#include <gtest/gtest.h>

#include <chrono>
#include <random>
#include <thread>

using namespace Qt::StringLiterals;
using namespace StoreTesting;

namespace {

// More writes than a child will get to.
const QString kUntilKilled = u"1000000"_s;

// The writes that children acknowledged and the file doesn't hold, or not as they were written.
QStringList missing(const UserStore &store, const QStringList &acknowledged)
{
    QSet<QString> present;
    for (const Note &note : store.notes()) {
        if (note.body == childNote(note.targetID))
            present.insert(u"note "_s + note.targetID);
    }
    for (const QString &lesson : store.completedLessons())
        present.insert(u"lesson "_s + lesson);
    for (const Bookmark &bookmark : store.bookmarks())
        present.insert(u"bookmark "_s + bookmark.targetID);
    for (const QuizResult &result : store.quizResults())
        present.insert(u"quiz "_s + result.moduleID);

    QStringList missing;
    for (const QString &write : acknowledged) {
        if (!present.contains(write))
            missing.append(write);
    }
    return missing;
}

using Clock = std::chrono::steady_clock;

// Moments that vary, but not from run to run. They are shares of what the interrupted work takes on
// the machine at hand, so that a kill hits any phase of it.
class Moments
{
public:
    int upTo(int most) { return std::uniform_int_distribution(0, most)(m_generator); }

    void letPassUpTo(Clock::duration most)
    {
        const Clock::time_point moment = Clock::now() + most * upTo(1000) / 1000;
        while (Clock::now() < moment)
            std::this_thread::yield();
    }

private:
    std::mt19937 m_generator{ 20261024 };
};

// Has two processes open a new file at the same moment, and returns what they say about it.
QStringList openedAtOnce(const QString &command, const QString &path)
{
    Child first({ command, path });
    Child second({ command, path });
    EXPECT_EQ(first.line(), u"ready"_s);
    EXPECT_EQ(second.line(), u"ready"_s);
    first.release();
    second.release();
    return first.remainingLines() + second.remainingLines();
}

} // namespace

TEST(Durability, EveryWriteIsOnTheDiskWhenItReturns)
{
    const Folder folder;
    int syncs = 0;
    const WatchedDisk disk([&syncs](const DiskOperation &operation) {
        syncs += operation.kind == DiskOperation::Sync ? 1 : 0;
        return SQLITE_OK;
    });
    UserStore store(folder.url(u"Progress.sqlite"_s));

    int before = syncs;
    const auto expectSync = [&] {
        EXPECT_GT(syncs, before);
        before = syncs;
    };
    store.setComplete(u"m01.1"_s, true);
    expectSync();
    store.saveQuiz(u"m01"_s, 4, 5, QDateTime::currentDateTimeUtc());
    expectSync();
    store.setBookmark(u"gear"_s, u"tripod"_s, true);
    expectSync();
    Note note;
    note.body = u"Mind the horizon."_s;
    store.save(note);
    expectSync();
}

TEST(Durability, TwoProcessesThatOpenANewFileAtOnceBothSucceed)
{
    const Folder folder;
    for (int round = 0; round < 50; ++round) {
        const QString path = folder.path(u"Progress %1.sqlite"_s.arg(round));
        EXPECT_EQ(openedAtOnce(u"open"_s, path), (QStringList{ u"opened"_s, u"opened"_s }));
    }
}

TEST(Durability, TwoLaunchesThatOpenANewFileAtOnceBothSucceed)
{
    const Folder folder;
    for (int round = 0; round < 50; ++round) {
        const QString path = folder.path(u"Progress %1.sqlite"_s.arg(round));
        EXPECT_EQ(openedAtOnce(u"launch"_s, path), (QStringList{ u"opened"_s, u"opened"_s }));
    }
}

TEST(Durability, NothingIsLostWhenTwoProcessesWriteAtOnce)
{
    const Folder folder;
    const QUrl file = folder.url(u"Progress.sqlite"_s);
    UserStore store(file);

    Child first({ u"write"_s, file.toLocalFile(), u"first"_s, u"100"_s });
    Child second({ u"write"_s, file.toLocalFile(), u"second"_s, u"100"_s });
    const QStringList acknowledged = first.remainingLines() + second.remainingLines();

    EXPECT_EQ(acknowledged.size(), 200);
    EXPECT_EQ(missing(store, acknowledged), QStringList());
    EXPECT_EQ(integrity(file.toLocalFile()), u"ok"_s);
}

TEST(Durability, ALaunchBesideAWritingProcessSucceedsAndLosesNothing)
{
    const Folder folder;
    const QUrl file = folder.url(u"Progress.sqlite"_s);
    Child writer({ u"answer"_s, file.toLocalFile(), u"writer"_s });

    QStringList acknowledged;
    for (int launch = 0; launch < 50; ++launch) {
        writer.request();
        std::unique_ptr<UserStore> store;
        EXPECT_EQ(errorOf([&] { store = Store::openProgressFile(file); }), std::nullopt);
        acknowledged.append(writer.line().value_or(u"no write"_s));
    }
    EXPECT_EQ(missing(UserStore(file), acknowledged), QStringList());
    EXPECT_EQ(integrity(file.toLocalFile()), u"ok"_s);
}

TEST(Durability, EveryAcknowledgedWriteOutlivesAKill)
{
    constexpr int files = 10;
    constexpr int killsOfEachFile = 20;
    constexpr int killsBetweenLooks = 5; // the children in between recover what the last one left

    const Folder folder;
    Moments moments;
    Clock::duration firstWrite{}; // what it took, the start of the child and the opening included
    Clock::duration laterWrite{};
    for (int number = 0; number < files; ++number) {
        const QUrl file = folder.url(u"Progress %1.sqlite"_s.arg(number));
        QStringList acknowledged;
        for (int kill = 1; kill <= killsOfEachFile; ++kill) {
            Child writer({ u"write"_s, file.toLocalFile(), QString::number(kill), kUntilKilled });
            const int writes = moments.upTo(5);
            for (int write = 0; write < writes; ++write) {
                const Clock::time_point start = Clock::now();
                acknowledged.append(writer.line().value_or(u"no write"_s));
                (write == 0 ? firstWrite : laterWrite) = Clock::now() - start;
            }
            moments.letPassUpTo(2 * (writes == 0 ? firstWrite : laterWrite));
            writer.kill();
            acknowledged += writer.remainingLines();

            if (kill % killsBetweenLooks == 0) {
                ASSERT_EQ(integrity(file.toLocalFile()), u"ok"_s);
                ASSERT_EQ(missing(*Store::openProgressFile(file), acknowledged), QStringList());
            }
        }
        EXPECT_GE(acknowledged.size(), killsOfEachFile);
    }
}

TEST(Durability, AFileWhoseFirstOpeningWasKilledOpens)
{
    const Folder folder;
    Moments moments;
    Clock::duration opening{};
    for (int round = 0; round <= 50; ++round) {
        const QUrl file = folder.url(u"Progress %1.sqlite"_s.arg(round));
        Child child({ u"launch"_s, file.toLocalFile() });
        ASSERT_EQ(child.line(), u"ready"_s);
        const Clock::time_point start = Clock::now();
        child.release();
        if (round == 0) { // left alone, to see how long it takes
            ASSERT_EQ(child.line(), u"opened"_s);
            opening = Clock::now() - start;
        }
        moments.letPassUpTo(opening);
        child.kill();
        static_cast<void>(child.remainingLines());

        std::unique_ptr<UserStore> store;
        ASSERT_EQ(errorOf([&] { store = Store::openProgressFile(file); }), std::nullopt);
        store->setComplete(u"m01.1"_s, true);
        EXPECT_TRUE(store->isComplete(u"m01.1"_s));
    }
}
