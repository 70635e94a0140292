#include "helptopiclist.h"

#include "kit/help.h"

HelpTopicList::HelpTopicList(QObject *parent)
    : RowModel(parent)
{
    reload();
}

void HelpTopicList::setQuery(const QString &query)
{
    if (m_query == query)
        return;
    m_query = query;
    reload();
    Q_EMIT queryChanged();
}

void HelpTopicList::reload()
{
    showRows<CRVNHelpTopic>(CRVNHelp::search(m_query),
        { { "topicID", &CRVNHelpTopic::id }, { "title", &CRVNHelpTopic::title } });
}
