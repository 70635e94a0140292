// What becomes of the progress file on a disk that fails: every single operation of every kind of
// write and of every kind of opening, once and for good. A write that came back is in the file, one
// that didn't has told why and can be made again, and the file opens.

#include "store/rehearsal.h"
#include "store/storetesting.h"
#include "store/userstore.h"
#include "store/watcheddisk.h"

#include "support/environment.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;
using namespace StoreTesting;

namespace {

constexpr std::array kKinds{ DiskOperation::Open, DiskOperation::Delete, DiskOperation::Write,
    DiskOperation::Truncate, DiskOperation::Sync, DiskOperation::Lock };

// What goes wrong: the n-th operation of a kind, from 1.
struct Fault {
    DiskOperation::Kind kind;
    int code;
    bool forGood; ///< As does every later one.
};

std::vector<Fault> allFaults()
{
    std::vector<Fault> faults;
    for (const bool forGood : { false, true }) {
        for (const DiskOperation::Kind kind : kKinds)
            faults.push_back({ kind, troubleWith(kind), forGood });
        faults.push_back({ DiskOperation::Write, SQLITE_FULL, forGood });
    }
    return faults;
}

// A disk that works until it is told to fail.
class FailingDisk
{
public:
    void failAt(const Fault &fault, int n)
    {
        m_fault = fault;
        m_left = n;
    }
    /// Returns whether it has failed since it was told to.
    bool work()
    {
        m_fault.reset();
        return m_left <= 0;
    }

private:
    int answer(const DiskOperation &operation)
    {
        if (!m_fault || operation.kind != m_fault->kind)
            return SQLITE_OK;
        --m_left;
        const bool fails = m_left == 0 || (m_left < 0 && m_fault->forGood);
        return fails ? m_fault->code : SQLITE_OK;
    }

    std::optional<Fault> m_fault;
    int m_left = 0;
    const WatchedDisk m_disk{ [this](
                                  const DiskOperation &operation) { return answer(operation); } };
};

void expectOneClearMessage(const HVError &error)
{
    EXPECT_EQ(error.kind(), HVError::Kind::Database);
    EXPECT_TRUE(error.description().startsWith(u"The database reported a problem: "_s))
        << qPrintable(error.description());
}

constexpr qint64 kNote = 1; // The id of the only one.

// Some of everything, beside which each write is made.
void fill(UserStore &store)
{
    store.setComplete(u"m01.1"_s, true);
    store.saveQuiz(u"m01"_s, 4, 5, QDateTime::currentDateTimeUtc());
    store.setBookmark(u"gear"_s, u"tripod"_s, true);
    Note note{ .targetType = u"lesson"_s, .targetID = u"m01.1"_s, .body = u"Mind the horizon."_s };
    store.save(note);
}

struct Change {
    const char *name;
    void (*make)(UserStore &store);
};

constexpr Change kChanges[]{
    { "AFinishedLesson", [](UserStore &store) { store.setComplete(u"m01.2"_s, true); } },
    { "ALessonTakenBack", [](UserStore &store) { store.setComplete(u"m01.1"_s, false); } },
    { "AQuiz",
        [](UserStore &store) { store.saveQuiz(u"m02"_s, 5, 6, QDateTime::currentDateTimeUtc()); } },
    { "ABookmark", [](UserStore &store) { store.setBookmark(u"gear"_s, u"prime"_s, true); } },
    { "ABookmarkTakenAway",
        [](UserStore &store) { store.setBookmark(u"gear"_s, u"tripod"_s, false); } },
    { "ANote",
        [](UserStore &store) {
            Note note{ .targetType = u"gear"_s,
                .targetID = u"tripod"_s,
                .body = u"Carbon legs. "_s.repeated(1500) };
            store.save(note);
        } },
    { "AChangedNote",
        [](UserStore &store) {
            Note note{ .id = kNote, .body = u"Mind the verticals."_s };
            store.save(note);
        } },
    { "ADeletedNote", [](UserStore &store) { store.deleteNote(kNote); } },
};

class OnAFailingDisk : public ::testing::TestWithParam<Change>
{
protected:
    // The file that each trial begins with, byte for byte.
    static QByteArray startingFile()
    {
        static const QByteArray bytes = [] {
            const Folder folder;
            const QString path = folder.path(u"Progress.sqlite"_s);
            {
                UserStore store(QUrl::fromLocalFile(path));
                fill(store);
            }
            return fileBytes(path);
        }();
        return bytes;
    }

    // Makes the change while the n-th operation fails. Returns whether it came to that.
    bool reaches(const Fault &fault, int n)
    {
        const Folder folder;
        const QString path = folder.path(u"Progress.sqlite"_s);
        const QUrl url = QUrl::fromLocalFile(path);
        writeFile(path, startingFile());

        FailingDisk disk;
        auto store = std::make_unique<UserStore>(url);
        const QString before = store->digest();
        const int revision = store->revision();
        disk.failAt(fault, n);
        const std::optional<HVError> error = errorOf([&] { GetParam().make(*store); });
        const bool hasFailed = disk.work();

        if (error) {
            EXPECT_TRUE(hasFailed);
            expectOneClearMessage(*error);
            EXPECT_EQ(store->digest(), before);
            EXPECT_EQ(store->revision(), revision);
            // The disk is well again, and the user tries once more.
            EXPECT_EQ(errorOf([&] { GetParam().make(*store); }), std::nullopt);
        }
        const QString after = store->digest();
        EXPECT_NE(after, before);
        store.reset();
        EXPECT_EQ(Store::openProgressFile(url)->digest(), after);
        EXPECT_EQ(integrity(path), u"ok"_s);
        return hasFailed;
    }
};

void PrintTo(const Change &change, std::ostream *out)
{
    *out << change.name;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(EveryOperationOf, OnAFailingDisk, ::testing::ValuesIn(kChanges),
    [](const auto &info) { return std::string(info.param.name); });

TEST_P(OnAFailingDisk, LosesNothingAndCanBeMadeAgain)
{
    int reached = 0;
    for (const Fault &fault : allFaults()) {
        for (int n = 1; reaches(fault, n) && !HasFailure(); ++n)
            ++reached;
    }
    RecordProperty("faults", reached);
    EXPECT_GE(reached, 10); // Two kinds of trouble with writing, syncing and locking at the least.
}

namespace {

// What stands in the place of the progress file as the program starts.
struct Beginning {
    const char *name;
    void (*make)(const QString &path);
};

void PrintTo(const Beginning &beginning, std::ostream *out)
{
    *out << beginning.name;
}

constexpr Beginning kBeginnings[]{
    { "NoFile", [](const QString &) {} },
    { "AnEmptyFile", [](const QString &path) { writeFile(path, {}); } },
    { "AClosedFile",
        [](const QString &path) {
            UserStore store(QUrl::fromLocalFile(path));
            fill(store);
        } },
    { "AFileWithAWal",
        [](const QString &path) {
            const Folder workshop;
            const QString original = workshop.path(u"Progress.sqlite"_s);
            UserStore store(QUrl::fromLocalFile(original));
            fill(store);
            writeFile(path, fileBytes(original));
            writeFile(path + u"-wal"_s, fileBytes(original + u"-wal"_s));
        } },
};

class OpeningOnAFailingDisk : public ::testing::TestWithParam<Beginning>
{
protected:
    // Opens while the n-th operation fails. Returns whether it came to that.
    bool reaches(const Fault &fault, int n)
    {
        const Folder folder;
        const Folder scratch;
        const EnvironmentVariable temporaryFolder("TMPDIR", scratch.path());
        const QString path = folder.path(u"Progress.sqlite"_s);
        const QUrl url = QUrl::fromLocalFile(path);
        GetParam().make(path);

        FailingDisk disk;
        disk.failAt(fault, n);
        std::unique_ptr<UserStore> store;
        const std::optional<HVError> error = errorOf([&] { store = Store::openProgressFile(url); });
        const bool hasFailed = disk.work();
        if (error) {
            EXPECT_TRUE(hasFailed);
            expectOneClearMessage(*error);
        } else {
            EXPECT_EQ(store->digest(), m_content);
            store.reset();
        }
        EXPECT_EQ(Store::openProgressFile(url)->digest(), m_content);
        EXPECT_EQ(integrity(path), u"ok"_s);
        EXPECT_EQ(fingerprint(scratch.path()), Fingerprint());
        return hasFailed;
    }

    void SetUp() override
    {
        const Folder folder;
        GetParam().make(folder.path(u"Progress.sqlite"_s));
        m_content = Store::openProgressFile(folder.url(u"Progress.sqlite"_s))->digest();
    }

private:
    QString m_content;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(EveryOperationOf, OpeningOnAFailingDisk, ::testing::ValuesIn(kBeginnings),
    [](const auto &info) { return std::string(info.param.name); });

TEST_P(OpeningOnAFailingDisk, SucceedsOrSaysWhyAndLeavesAFileThatOpens)
{
    int reached = 0;
    for (const Fault &fault : allFaults()) {
        for (int n = 1; reaches(fault, n) && !HasFailure(); ++n)
            ++reached;
    }
    RecordProperty("faults", reached);
    EXPECT_GE(reached, 20);
}
