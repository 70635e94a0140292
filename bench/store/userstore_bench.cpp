// What a user waits for who saves a note, and who opens the notes.
//
// Budget: a note is saved in at most 1.5 times what SQLite takes for the bare INSERT and its commit
// on the same disk, with the same safety (write-ahead log, synchronous = FULL). Both are done in
// turns, so that the disk's moods weigh on both alike; `ratio` is that of their medians. A file of
// 50,000 notes and 5,000 bookmarks is read in 200 ms, which leaves the notes screen 100 ms.

#include "store/userstore.h"

#include <benchmark/benchmark.h>

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QUrl>

#include <sqlite3.h>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QString kBody = u"Meter for the shadows, and let the sky go. "_s.repeated(8);

double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// A connection that does no more than it is asked to.
class BareFile
{
public:
    explicit BareFile(const QString &path)
    {
        sqlite3_open(path.toUtf8().constData(), &m_handle);
        sqlite3_exec(m_handle,
            "PRAGMA journal_mode = WAL; PRAGMA synchronous = FULL;"
            "CREATE TABLE notes (id INTEGER PRIMARY KEY AUTOINCREMENT, target_type TEXT NOT NULL,"
            "target_id TEXT NOT NULL, body TEXT NOT NULL, created REAL NOT NULL, updated REAL NOT "
            "NULL); CREATE INDEX notes_target ON notes(target_type, target_id)",
            nullptr, nullptr, nullptr);
        sqlite3_prepare_v2(m_handle,
            "INSERT INTO notes (target_type, target_id, body, created, updated) "
            "VALUES ('lesson', 'm01.1', ?, 1790000000.0, 1790000000.0)",
            -1, &m_insert, nullptr);
    }
    ~BareFile()
    {
        sqlite3_finalize(m_insert);
        sqlite3_close(m_handle);
    }
    Q_DISABLE_COPY_MOVE(BareFile)

    void insert(const QByteArray &body)
    {
        sqlite3_bind_text(m_insert, 1, body.constData(), int(body.size()), SQLITE_STATIC);
        sqlite3_step(m_insert);
        sqlite3_reset(m_insert);
    }

private:
    sqlite3 *m_handle = nullptr;
    sqlite3_stmt *m_insert = nullptr;
};

void BM_SaveNoteBesideBareCommit(benchmark::State &state)
{
    const QTemporaryDir folder;
    UserStore store(QUrl::fromLocalFile(folder.filePath(u"Progress.sqlite"_s)));
    BareFile bare(folder.filePath(u"bare.sqlite"_s));
    const QByteArray bytes = kBody.toUtf8();

    std::vector<double> saves;
    std::vector<double> commits;
    QElapsedTimer clock;
    for (auto _ : state) {
        Note note{ .targetType = u"lesson"_s, .targetID = u"m01.1"_s, .body = kBody };
        clock.start();
        store.save(note);
        saves.push_back(double(clock.nsecsElapsed()) * 1e-3);
        clock.start();
        bare.insert(bytes);
        commits.push_back(double(clock.nsecsElapsed()) * 1e-3);
    }
    state.counters["save_us"] = median(saves);
    state.counters["bare_us"] = median(commits);
    state.counters["ratio"] = median(saves) / median(commits);
}
BENCHMARK(BM_SaveNoteBesideBareCommit)->Unit(benchmark::kMicrosecond)->Iterations(2000);

/// A file that somebody has kept notes in for decades.
const UserStore &fullStore()
{
    static const QTemporaryDir folder;
    static const QUrl url = QUrl::fromLocalFile(folder.filePath(u"Progress.sqlite"_s));
    static const UserStore store(url);
    [[maybe_unused]] static const bool isFilled = [] {
        SQLiteDB file(url.toLocalFile());
        file.transaction([&] {
            for (int i = 0; i < 50'000; ++i) {
                file.run(u"INSERT INTO notes (target_type, target_id, body, created, updated) "
                         "VALUES ('lesson', ?, ?, ?, ?)"_s,
                    { u"m%1"_s.arg(i % 82), kBody.left(20 + i % 300), i, i });
            }
            for (int i = 0; i < 5'000; ++i)
                file.run(u"INSERT INTO bookmarks VALUES ('gear', ?, ?)"_s, { u"g%1"_s.arg(i), i });
        });
        return true;
    }();
    return store;
}

void BM_ReadFiftyThousandNotes(benchmark::State &state)
{
    const UserStore &store = fullStore();
    for (auto _ : state)
        benchmark::DoNotOptimize(store.notes());
}
BENCHMARK(BM_ReadFiftyThousandNotes)->Unit(benchmark::kMillisecond);

void BM_ReadFiveThousandBookmarks(benchmark::State &state)
{
    const UserStore &store = fullStore();
    for (auto _ : state)
        benchmark::DoNotOptimize(store.bookmarks());
}
BENCHMARK(BM_ReadFiveThousandBookmarks)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
