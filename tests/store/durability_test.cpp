// What the progress file holds after processes that share it, or that were killed.

#include "store/childwrites.h"
#include "store/rehearsal.h"
#include "store/storetesting.h"
#include "store/userstore.h"
#include "store/watcheddisk.h"

#include <QFile>
#include <QHash>
#include <QMap>

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <iostream>
#include <memory>
#include <random>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;
using namespace StoreTesting;

namespace {

// What the file holds of each child, by its name.
QHash<QString, QSet<QString>> recordsByChild(const UserStore &store)
{
    QHash<QString, QSet<QString>> records;
    const auto add = [&records](const QString &kind, const QString &key) {
        records[key.section(u'.', 0, 0)].insert(kind + u' ' + key);
    };
    for (const Note &note : store.notes()) {
        const QString &key = note.targetID;
        if (note.body == childNote(key))
            add(u"note"_s, key);
        else
            add(note.body == changedChildNote(key) ? u"changed note"_s : u"damaged note"_s, key);
    }
    for (const QString &lesson : store.completedLessons())
        add(u"lesson"_s, lesson);
    for (const Bookmark &bookmark : store.bookmarks())
        add(u"bookmark"_s, bookmark.targetID);
    for (const QuizResult &result : store.quizResults())
        add(u"quiz"_s, result.moduleID);
    return records;
}

// Children by name, and how many of their writes came back.
using Acknowledged = QMap<QString, qsizetype>;

// The children of which the file doesn't hold what they wrote, neither less nor more. Their next
// write may have been made when they were killed, and not yet reported.
QStringList misremembered(const UserStore &store, const Acknowledged &children)
{
    const QHash<QString, QSet<QString>> records = recordsByChild(store);
    QStringList wrong;
    for (const auto &[name, count] : children.asKeyValueRange()) {
        const QSet<QString> present = records.value(name);
        if (present != childRecords(name, int(count))
            && present != childRecords(name, int(count) + 1))
            wrong.append(name);
    }
    return wrong;
}

using Clock = std::chrono::steady_clock;

// The number that an environment variable asks for.
int asked(const char *name, int otherwise)
{
    return qEnvironmentVariableIsSet(name) ? qEnvironmentVariableIntValue(name) : otherwise;
}

// Moments that vary, but not from run to run unless HV_SEED asks for others. They are shares of
// what the interrupted work takes on the machine at hand, so that a kill hits any phase of it.
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
    std::mt19937 m_generator{ unsigned(asked("HV_SEED", 20261024)) };
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
    const Acknowledged acknowledged{ { u"first"_s, first.remainingLines().size() },
        { u"second"_s, second.remainingLines().size() } };

    EXPECT_EQ(acknowledged, (Acknowledged{ { u"first"_s, 100 }, { u"second"_s, 100 } }));
    EXPECT_EQ(misremembered(store, acknowledged), QStringList());
    EXPECT_EQ(integrity(file.toLocalFile()), u"ok"_s);
}

TEST(Durability, ALaunchBesideAWritingProcessSucceedsAndLosesNothing)
{
    const Folder folder;
    const QUrl file = folder.url(u"Progress.sqlite"_s);
    Child writer({ u"answer"_s, file.toLocalFile(), u"writer"_s });

    constexpr int launches = 50;
    for (int launch = 0; launch < launches; ++launch) {
        writer.request();
        std::unique_ptr<UserStore> store;
        EXPECT_EQ(errorOf([&] { store = Store::openProgressFile(file); }), std::nullopt);
        EXPECT_EQ(writer.line(), QString::number(launch));
    }
    EXPECT_EQ(misremembered(UserStore(file), { { u"writer"_s, launches } }), QStringList());
    EXPECT_EQ(integrity(file.toLocalFile()), u"ok"_s);
}

// HV_KILLS asks for more kills than these.
TEST(Durability, EveryAcknowledgedWriteOutlivesAKill)
{
    const int kills = asked("HV_KILLS", 200);
    constexpr int killsOfEachFile = 20;
    constexpr int killsBetweenLooks = 5; // the children in between recover what the last one left

    const Folder folder;
    Moments moments;
    Clock::duration beginning{}; // what it took to start a child and open the file
    Clock::duration laterWrite{};
    int besideAnother = 0;
    int whileOpening = 0;
    qsizetype writes = 0;
    for (int first = 1; first <= kills; first += killsOfEachFile) {
        const QString path = folder.path(u"Progress %1.sqlite"_s.arg(first));
        const QUrl file = QUrl::fromLocalFile(path);
        Acknowledged acknowledged;
        const int last = std::min(first + killsOfEachFile - 1, kills);
        for (int kill = first; kill <= last; ++kill) {
            const QString command = moments.upTo(1) == 0 ? u"answer"_s : u"launch-and-answer"_s;
            std::vector<std::unique_ptr<Child>> children;
            QStringList names;
            // Every fourth has company, which is killed as well.
            const int together = moments.upTo(3) == 0 && kill < last ? 2 : 1;
            for (int child = 0; child < together; ++child) {
                names.append(u"%1-%2"_s.arg(kill).arg(child));
                children.push_back(
                    std::make_unique<Child>(QStringList{ command, path, names.constLast() }));
            }

            // Every third is killed while it opens the file.
            const int awaited = std::max(moments.upTo(11) - 3, 0);
            Clock::time_point start = Clock::now();
            for (int write = 0; write < awaited; ++write) {
                for (const auto &child : children)
                    child->request();
                for (int child = 0; child < together; ++child) {
                    ASSERT_EQ(children.at(size_t(child))->line(), QString::number(write));
                    ++acknowledged[names.at(child)];
                }
                (write == 0 ? beginning : laterWrite) = Clock::now() - start;
                start = Clock::now();
            }
            for (int write = 0; write < 3 && awaited > 0; ++write) {
                for (const auto &child : children)
                    child->request();
            }
            for (int child = 0; child < together; ++child) {
                moments.letPassUpTo(awaited == 0 ? beginning : 2 * laterWrite);
                children.at(size_t(child))->kill();
            }
            for (int child = 0; child < together; ++child)
                acknowledged[names.at(child)]
                    += children.at(size_t(child))->remainingLines().size();
            besideAnother += together == 2 ? 2 : 0;
            whileOpening += awaited == 0 ? together : 0;
            kill += together - 1;

            if (kill % killsBetweenLooks == 0 || kill == last) {
                ASSERT_EQ(integrity(file.toLocalFile()), u"ok"_s);
                ASSERT_EQ(
                    misremembered(*Store::openProgressFile(file), acknowledged), QStringList());
            }
        }
        for (const qsizetype count : acknowledged)
            writes += count;
        for (const auto suffix : { ""_L1, "-wal"_L1, "-shm"_L1 })
            QFile::remove(path + suffix);
    }
    EXPECT_GE(writes, kills);
    std::cout << kills << " kills: " << besideAnother << " of two processes at once, "
              << whileOpening << " while they began, " << writes
              << " writes acknowledged, none lost.\n";
}

// As many as a quarter of HV_KILLS.
TEST(Durability, AFileWhoseFirstOpeningWasKilledOpens)
{
    const int rounds = asked("HV_KILLS", 200) / 4;
    const Folder folder;
    Moments moments;
    constexpr int roundsLeftAlone = 5; // to see how long an opening takes
    Clock::duration opening = Clock::duration::max();
    int opened = 0;
    for (int round = -roundsLeftAlone; round < rounds; ++round) {
        const QUrl file = folder.url(u"Progress %1.sqlite"_s.arg(round));
        Child child({ u"launch"_s, file.toLocalFile() });
        ASSERT_EQ(child.line(), u"ready"_s);
        const Clock::time_point start = Clock::now();
        child.release();
        if (round < 0) {
            ASSERT_EQ(child.line(), u"opened"_s);
            opening = std::min(opening, Clock::now() - start);
            continue;
        }
        moments.letPassUpTo(opening);
        child.kill();
        opened += int(child.remainingLines().size());

        // Every second is opened by two at once, of which one may take back what was begun.
        if (round % 2 != 0) {
            ASSERT_EQ(openedAtOnce(u"launch"_s, file.toLocalFile()),
                QStringList({ u"opened"_s, u"opened"_s }));
        }
        std::unique_ptr<UserStore> store;
        ASSERT_EQ(errorOf([&] { store = Store::openProgressFile(file); }), std::nullopt);
        store->setComplete(u"m01.1"_s, true);
        EXPECT_TRUE(store->isComplete(u"m01.1"_s));
    }
    std::cout << rounds << " kills of a first opening: " << opened
              << " had just succeeded, all files open.\n";
}
