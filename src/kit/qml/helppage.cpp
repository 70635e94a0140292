#include "helppage.h"

#include "kit/help.h"

HelpPage::HelpPage(QObject *parent)
    : RowModel(parent)
{
    setTopicID({});
}

void HelpPage::setTopicID(const QString &id)
{
    const CRVNHelpTopic topic = CRVNHelp::topic(id);
    m_topicID = topic.id;
    m_title = topic.title;
    showRows<CRVNHelp::Block>(CRVNHelp::blocks(topic.body),
        {
            { "kind", [](const CRVNHelp::Block &block) { return Kind(block.kind); } },
            { "text", &CRVNHelp::Block::text },
        });
    Q_EMIT topicChanged();
}
