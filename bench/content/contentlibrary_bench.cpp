// Reading the course, which a user waits for at each start before the first window shows; indexing
// it, which follows; and searching it, which happens at each letter typed.
//
// Budget: BM_ReadCourse takes at most 4 times as long as BM_ReadAndDecode, which does no more than
// read the same files and decode them, and with ten courses in one at most 11 times as long as with
// one. BM_LoadLibrary, which adds the index, takes at most 60 ms for one course, and what it takes
// beyond BM_ReadCourse is at most 1.3 times as long as BM_IndexBySQLitesProgram. BM_Search takes at
// most 1.2 times as long as BM_BareSearch. The argument is the number of courses.
//
// A program loads once, into memory that it has yet to get from the system. So each turn starts
// with an empty heap; otherwise the buffers of BM_ReadAndDecode would never leave the cache.
#include "content/contentlibrary.h"
#include "content/text.h"

#include "support/fullcourse.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <array>

#include <memory>

#include <sys/resource.h>

#ifdef __GLIBC__
#include <malloc.h>
#endif

using namespace Qt::StringLiterals;

namespace {

// More queries than a library remembers the answers to, so that each is looked up anew.
constexpr std::array kQueries = { u"aperture", u"light", u"f/2.8", u"stopping", u"sharp", u"twice",
    u"a", u"higher number", u"zoom", u"camera", u"picture", u"kit lens" };

// Gives freed memory back to the system, where the C library can do that.
void emptyHeap()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

void BM_ReadAndDecode(benchmark::State &state)
{
    const FullCourse folder(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        state.PauseTiming();
        emptyHeap();
        state.ResumeTiming();
        for (const QString &name : FullCourse::fileNames()) {
            QFile file(folder.path() + u'/' + name);
            if (!file.open(QIODevice::ReadOnly))
                state.SkipWithError("A file can't be read.");
            benchmark::DoNotOptimize(QString::fromUtf8(file.readAll()));
        }
    }
    state.counters["bytes"] = static_cast<double>(folder.size());
}
BENCHMARK(BM_ReadAndDecode)->Arg(1)->Arg(10)->Unit(benchmark::kMicrosecond);

void BM_ReadCourse(benchmark::State &state)
{
    const FullCourse folder(static_cast<int>(state.range(0)));
    CourseContent course;
    for (auto _ : state) {
        state.PauseTiming();
        course = {};
        emptyHeap();
        state.ResumeTiming();
        course = Content::readCourse(folder.path());
        if (!course.loadErrors.isEmpty())
            state.SkipWithError("The course can't be read.");
    }
    state.counters["bytes"] = static_cast<double>(folder.size());
}
BENCHMARK(BM_ReadCourse)->Arg(1)->Arg(10)->Unit(benchmark::kMicrosecond);

void BM_LoadLibrary(benchmark::State &state)
{
    const FullCourse folder(static_cast<int>(state.range(0)));
    std::unique_ptr<ContentLibrary> library;
    for (auto _ : state) {
        // A program keeps its course to the end: taking it down is no part of the wait.
        state.PauseTiming();
        library.reset();
        emptyHeap();
        state.ResumeTiming();
        library = std::make_unique<ContentLibrary>(folder.path());
        if (!library->index())
            state.SkipWithError("The course can't be loaded.");
    }
    state.counters["bytes"] = static_cast<double>(folder.size());
}
BENCHMARK(BM_LoadLibrary)->Arg(1)->Arg(10)->Unit(benchmark::kMicrosecond);

QString quoted(QString text)
{
    return u'\'' + text.replace(u'\'', u"''"_s) + u'\'';
}

// The statements that make the index of a library once more.
QByteArray indexScript(const ContentLibrary &library)
{
    QString sql = library.index()
                      ->query(u"SELECT sql FROM sqlite_schema WHERE name = 'fts'"_s)
                      .first()
                      .str(u"sql"_s)
        + u";\nBEGIN;\n";
    for (const SQLRow &row : library.index()->query(u"SELECT * FROM fts ORDER BY rowid"_s)) {
        QStringList values;
        for (const QString &column : { u"kind"_s, u"ref"_s, u"title"_s, u"aka"_s, u"body"_s })
            values.append(quoted(row.str(column)));
        sql += u"INSERT INTO fts VALUES (" + values.join(u',') + u");\n";
    }
    return (sql + u"COMMIT;\n").toUtf8();
}

// Processor time of the processes that have been started and have ended.
double childrenSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    const auto seconds
        = [](const timeval &time) { return double(time.tv_sec) + time.tv_usec / 1e6; };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

// What SQLite's own program takes for the same inserts, its start included: processor time, to set
// beside that of the library.
void BM_IndexBySQLitesProgram(benchmark::State &state)
{
    const FullCourse folder(static_cast<int>(state.range(0)));
    const QString script = folder.path() + u"/index.sql"_s;
    QFile file(script);
    if (!file.open(QIODevice::WriteOnly)
        || file.write(indexScript(ContentLibrary(folder.path()))) < 0)
        qFatal("The script can't be written.");
    file.close();
    for (auto _ : state) {
        const double before = childrenSeconds();
        QProcess sqlite;
        sqlite.setStandardInputFile(script);
        sqlite.start(u"sqlite3"_s, { u":memory:"_s });
        if (!sqlite.waitForFinished() || sqlite.exitCode() != 0)
            qFatal("sqlite3 can't be run.");
        state.SetIterationTime(childrenSeconds() - before);
    }
}
BENCHMARK(BM_IndexBySQLitesProgram)
    ->Arg(1)
    ->Arg(10)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

void BM_BareSearch(benchmark::State &state)
{
    const FullCourse folder(static_cast<int>(state.range(0)));
    const QByteArray script = indexScript(ContentLibrary(folder.path()));
    sqlite3 *database = nullptr;
    sqlite3_open(":memory:", &database);
    sqlite3_exec(database, script.constData(), nullptr, nullptr, nullptr);
    for (auto _ : state) {
        for (const char16_t *query : kQueries) {
            const QByteArray match
                = '"' + Text::words(query).join(u"\"* AND \""_s).toUtf8() + "\"*";
            sqlite3_stmt *statement = nullptr;
            sqlite3_prepare_v2(database,
                "SELECT kind, ref, title, snippet(fts, 4, '', '', '…', 14) AS snip FROM fts "
                "WHERE fts MATCH ? ORDER BY bm25(fts, 0, 0, 12.0, 6.0, 1.0) LIMIT 60",
                -1, &statement, nullptr);
            sqlite3_bind_text(statement, 1, match.constData(), -1, SQLITE_STATIC);
            while (sqlite3_step(statement) == SQLITE_ROW) {
                for (int column = 0; column < 4; ++column)
                    benchmark::DoNotOptimize(sqlite3_column_text(statement, column));
            }
            sqlite3_finalize(statement);
        }
    }
    sqlite3_close(database);
    state.counters["queries"] = kQueries.size();
}
BENCHMARK(BM_BareSearch)->Arg(1)->Arg(10)->Unit(benchmark::kMillisecond);

void BM_Search(benchmark::State &state)
{
    const FullCourse folder(static_cast<int>(state.range(0)));
    const ContentLibrary library(folder.path());
    for (auto _ : state) {
        for (const char16_t *query : kQueries)
            benchmark::DoNotOptimize(library.search(QString::fromUtf16(query)));
    }
    state.counters["queries"] = kQueries.size();
}
BENCHMARK(BM_Search)->Arg(1)->Arg(10)->Unit(benchmark::kMillisecond);

void BM_SearchAskedAgain(benchmark::State &state)
{
    const FullCourse folder;
    const ContentLibrary library(folder.path());
    const QString query = u"aperture"_s;
    for (auto _ : state)
        benchmark::DoNotOptimize(library.search(query));
}
BENCHMARK(BM_SearchAskedAgain)->Unit(benchmark::kNanosecond);

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv); // QProcess needs one
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
