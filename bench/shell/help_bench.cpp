// The help's search, which a user waits for at each letter typed into its field.
//
// Budget: 5 ms a query, on the course that the program ships with, making the topics included; a
// pasted query of 10,000 characters no more than that.
#include "shell/help/helptopics.h"

#include "content/contentlibrary.h"

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

const ContentLibrary &course()
{
    static const ContentLibrary library(QStringLiteral(HV_BENCH_COURSE));
    return library;
}

void BM_HelpTopics(benchmark::State &state)
{
    std::ignore = HVHelp::topics(course());
    for (auto _ : state)
        benchmark::DoNotOptimize(HVHelp::topics(course()));
}
BENCHMARK(BM_HelpTopics)->Unit(benchmark::kMicrosecond);

void search(benchmark::State &state, const QString &query)
{
    CRVNHelp::setTopics([] { return HVHelp::topics(course()); });
    std::ignore = CRVNHelp::search(query);
    for (auto _ : state)
        benchmark::DoNotOptimize(CRVNHelp::search(query));
}

void BM_SearchHelp(benchmark::State &state)
{
    search(state, u"depth of field"_s);
}
BENCHMARK(BM_SearchHelp)->Unit(benchmark::kMicrosecond);

// 10,000 characters: one word, the same words again and again, and words that are all different.
void BM_SearchHelpForOneLongWord(benchmark::State &state)
{
    search(state, QString(10'000, u'a'));
}
BENCHMARK(BM_SearchHelpForOneLongWord)->Unit(benchmark::kMicrosecond);

void BM_SearchHelpForRepeatedWords(benchmark::State &state)
{
    search(state, u"the lens lab "_s.repeated(770));
}
BENCHMARK(BM_SearchHelpForRepeatedWords)->Unit(benchmark::kMicrosecond);

void BM_SearchHelpForManyWords(benchmark::State &state)
{
    // Pieces from the end of the longest text: every one is there, and is found late.
    QString credits = HVHelp::creditsBody(course());
    credits.remove(u'\n').remove(u' ');
    QStringList pieces;
    for (qsizetype i = credits.size() - 2'500; i + 3 <= credits.size(); ++i)
        pieces.append(credits.mid(i, 3));
    search(state, pieces.join(u' ').left(10'000));
}
BENCHMARK(BM_SearchHelpForManyWords)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
