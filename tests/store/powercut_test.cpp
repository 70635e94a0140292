// What a power cut leaves of the progress file: a session is recorded down to the disk, and at its
// every moment the disk may hold what was made sure of, and any part of the rest. Each file that
// can be the outcome opens and holds all that had been acknowledged by then.
//
// HV_POWER_CUTS sets how many outcomes to look at, spread over the session; 300 if unset.

#include "store/rehearsal.h"
#include "store/storetesting.h"
#include "store/userstore.h"
#include "store/watcheddisk.h"

#include "support/environment.h"

#include <QMap>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

using namespace Qt::StringLiterals;
using namespace StoreTesting;

namespace {

constexpr int kUsualCuts = 300;
constexpr qsizetype kSector = 512; // What a disk writes whole or not at all.

// The state of the store at a moment of the recording.
struct Acknowledged {
    qsizetype operations; ///< That had been done by then.
    QString digest;
};

struct Session {
    std::vector<DiskOperation> operations;
    std::vector<Acknowledged> acknowledged;
};

// A new file, several of each kind of write, enough of them for the write-ahead log to be brought
// home on the way, and a second start.
Session recorded(const QString &path)
{
    Session session;
    const WatchedDisk disk([&](const DiskOperation &operation) {
        // The copy on which an opening is rehearsed is no part of the user's disk.
        if (operation.path.startsWith(path))
            session.operations.push_back(operation);
        return SQLITE_OK;
    });

    const QString longText = u"Expose for the shadows. "_s.repeated(100);
    for (int start = 0; start < 2; ++start) {
        const auto store = Store::openProgressFile(QUrl::fromLocalFile(path));
        const auto acknowledge = [&] {
            session.acknowledged.push_back(
                { qsizetype(session.operations.size()), store->digest() });
        };
        acknowledge();
        for (int i = 0; i < 120; ++i) {
            const QString id = u"%1.%2"_s.arg(start).arg(i);
            store->setComplete(id, true);
            acknowledge();
            store->saveQuiz(id, i % 6, 6, QDateTime::currentDateTimeUtc());
            acknowledge();
            store->setBookmark(u"gear"_s, id, true);
            acknowledge();
            Note note{ .targetType = u"gear"_s, .targetID = id, .body = longText + id };
            store->save(note);
            acknowledge();
            if (i % 4 == 3) {
                note.body = u"Shorter. "_s + id;
                store->save(note);
                acknowledge();
                store->setComplete(id, false);
                acknowledge();
            }
        }
    }
    return session;
}

// A file on the disk: what is sure to be there, and what has been asked for since.
struct DiskFile {
    QByteArray safe;
    std::vector<const DiskOperation *> pending; ///< Writes and truncations.
    enum { Stays, MayBeGone, IsGone } end = Stays;
};

void apply(const DiskOperation &operation, QByteArray &bytes)
{
    if (operation.kind == DiskOperation::Truncate) {
        bytes.resize(std::min<qsizetype>(bytes.size(), operation.offset));
        return;
    }
    const qsizetype end = operation.offset + operation.bytes.size();
    if (bytes.size() < end)
        bytes.append(end - bytes.size(), '\0');
    bytes.replace(operation.offset, operation.bytes.size(), operation.bytes);
}

// The disk as it may be when the power goes.
class CutDisk
{
public:
    void take(const DiskOperation &operation)
    {
        DiskFile &file = m_files[operation.path];
        switch (operation.kind) {
        case DiskOperation::Open:
            if (file.end != DiskFile::Stays)
                file = {};
            break;
        case DiskOperation::Write:
        case DiskOperation::Truncate:
            file.pending.push_back(&operation);
            break;
        case DiskOperation::Sync:
            for (const DiskOperation *pending : file.pending)
                apply(*pending, file.safe);
            file.pending.clear();
            break;
        case DiskOperation::Delete:
            file.end = operation.syncsFolder ? DiskFile::IsGone : DiskFile::MayBeGone;
            break;
        case DiskOperation::Lock:
            break;
        }
    }

    enum class Outcome {
        OnlyWhatIsSafe,
        All,
        BrokenOff, ///< All up to a moment, of the last write some sectors.
        AnyOrder,  ///< Any of them, in any order, of each some sectors.
    };

    // Leaves the files as the outcome has them.
    void cut(Outcome outcome, std::mt19937 &chance) const
    {
        for (auto file = m_files.cbegin(); file != m_files.cend(); ++file) {
            const bool mayBeGone = file->end == DiskFile::MayBeGone
                && (outcome == Outcome::All
                    || (outcome != Outcome::OnlyWhatIsSafe && chance() % 2));
            const bool isGone = file->end == DiskFile::IsGone || mayBeGone;
            if (!isGone)
                writeFile(file.key(), content(*file, outcome, chance));
        }
    }

private:
    static QByteArray content(const DiskFile &file, Outcome outcome, std::mt19937 &chance)
    {
        QByteArray bytes = file.safe;
        std::vector<const DiskOperation *> pending = file.pending;
        switch (outcome) {
        case Outcome::OnlyWhatIsSafe:
            break;
        case Outcome::All:
            for (const DiskOperation *operation : pending)
                apply(*operation, bytes);
            break;
        case Outcome::BrokenOff: {
            const size_t whole = pending.empty() ? 0 : chance() % pending.size();
            for (size_t i = 0; i < whole; ++i)
                apply(*pending[i], bytes);
            if (whole < pending.size())
                applySomeSectors(*pending[whole], bytes, chance);
            break;
        }
        case Outcome::AnyOrder:
            std::ranges::shuffle(pending, chance);
            for (const DiskOperation *operation : pending) {
                if (chance() % 2)
                    applySomeSectors(*operation, bytes, chance);
            }
            break;
        }
        return bytes;
    }

    static void applySomeSectors(
        const DiskOperation &operation, QByteArray &bytes, std::mt19937 &chance)
    {
        if (operation.kind == DiskOperation::Truncate)
            return apply(operation, bytes);
        for (qsizetype at = 0; at < operation.bytes.size();) {
            // Sectors are those of the disk: the first may begin before the write does.
            const qsizetype size = std::min(
                kSector - (operation.offset + at) % kSector, operation.bytes.size() - at);
            DiskOperation sector = operation;
            sector.offset += at;
            sector.bytes = operation.bytes.sliced(at, size);
            if (chance() % 2)
                apply(sector, bytes);
            at += size;
        }
    }

    QMap<QString, DiskFile> m_files;
};

void removeFiles(const QString &folder)
{
    for (const QString &name : fingerprint(folder).keys())
        QFile::remove(folder + u'/' + name);
}

} // namespace

TEST(PowerCut, EveryOutcomeOpensAndHoldsWhatWasAcknowledged)
{
    using Outcome = CutDisk::Outcome;
    constexpr Outcome outcomes[]{ Outcome::OnlyWhatIsSafe, Outcome::All, Outcome::BrokenOff,
        Outcome::AnyOrder };

    bool isSet = false;
    const int asked = qEnvironmentVariableIntValue("HV_POWER_CUTS", &isSet);
    const int cuts = isSet ? std::max(asked, 2) : kUsualCuts; // the first moment and the last

    const Folder folder;
    const Folder scratch;
    const EnvironmentVariable temporaryFolder("TMPDIR", scratch.path());
    const QString path = folder.path(u"Progress.sqlite"_s);
    const Session session = recorded(path);
    ASSERT_GT(session.operations.size(), 1000U);
    // Each start begins a log, and so does the first write after it has been brought home.
    const auto logs = std::ranges::count_if(session.operations, [](const auto &operation) {
        return operation.kind == DiskOperation::Write && operation.path.endsWith("-wal"_L1)
            && operation.offset == 0;
    });
    ASSERT_GT(logs, 2);

    std::mt19937 chance{ 20261122 };
    CutDisk disk;
    qsizetype done = 0;
    for (int number = 0; number < cuts; ++number) {
        // As many moments as there are cuts, evenly apart, from none done to all.
        const qsizetype moment = qsizetype(session.operations.size()) * number / (cuts - 1);
        while (done < moment)
            disk.take(session.operations[size_t(done++)]);

        const Outcome outcome = outcomes[chance() % std::size(outcomes)];
        removeFiles(folder.path());
        disk.cut(outcome, chance);

        const auto next
            = std::ranges::upper_bound(session.acknowledged, moment, {}, &Acknowledged::operations);
        QStringList allowed{ next == session.acknowledged.cbegin() ? u"###"_s
                                                                   : std::prev(next)->digest };
        if (next != session.acknowledged.cend())
            allowed.append(next->digest); // That was under way, and may have arrived.

        QString found;
        const auto error = errorOf(
            [&] { found = Store::openProgressFile(folder.url(u"Progress.sqlite"_s))->digest(); });
        ASSERT_EQ(error, std::nullopt) << "at operation " << moment << ", outcome " << int(outcome);
        ASSERT_TRUE(allowed.contains(found))
            << "at operation " << moment << ", outcome " << int(outcome);
        ASSERT_EQ(integrity(path), u"ok"_s);
    }
    RecordProperty("outcomes", cuts);
    RecordProperty("operations", int(session.operations.size()));
}
