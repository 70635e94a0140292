#include "screens/search/private/searchresults.h"

#include "kit/snapshotmode.h"
#include "shell/appmodel.h"

using namespace Qt::StringLiterals;
using Hit = ContentLibrary::Hit;

namespace {

constexpr qint64 kLimit = 40;

// A page may have been pasted, and laying out what can't be seen takes time as well.
constexpr qsizetype kLongestHeading = 300;

QString counted(qsizetype count)
{
    return count == 1 ? SearchResults::tr("1 result") : SearchResults::tr("%1 results").arg(count);
}

QString shortened(const QString &query)
{
    return query.size() <= kLongestHeading ? query : query.first(kLongestHeading) + u'…';
}

} // namespace

SearchResults::SearchResults(QObject *parent)
    : RowModel(parent)
{
    showHits({});
    connect(&m_search, &QFutureWatcherBase::finished, this, [this] {
        if (!m_search.isCanceled())
            show(m_search.result());
    });
    connect(&AppModel::shared(), &AppModel::globalQueryChanged, this, &SearchResults::ask);
    ask();
}

SearchResults::~SearchResults()
{
    m_search.cancel();
    AppModel::shared().setSearchOutcome({});
}

void SearchResults::ask()
{
    m_search.cancel();
    if (!AppModel::shared().showsResults())
        return; // the results are about to go
    m_query = AppModel::shared().globalQuery();
    const ContentLibrary &library = ContentLibrary::shared();
    if (SnapshotMode::isEnabled())
        show(library.search(m_query, {}, kLimit));
    else
        m_search.setFuture(library.searchInBackground(m_query, {}, kLimit));
}

void SearchResults::showHits(const Hits &hits)
{
    showRows<Hit>(hits,
        {
            { "kind", &Hit::kind },
            { "ref", &Hit::ref },
            { "title", &Hit::title },
            { "snippet", [](const Hit &hit) { return hit.snippet.simplified(); } },
        });
}

void SearchResults::show(const Hits &hits)
{
    showHits(hits);
    m_isAnswered = true;
    m_heading = tr("%1 for \"%2\"").arg(counted(hits.size()), shortened(m_query));
    AppModel::shared().setSearchOutcome(counted(hits.size()));
    Q_EMIT answered();
}
