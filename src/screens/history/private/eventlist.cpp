#include "screens/history/private/eventlist.h"

#include "screens/history/timeline.h"

#include "content/contentlibrary.h"
#include "shell/appmodel.h"

#include <algorithm>

EventList::EventList(QObject *parent)
    : RowModel(parent)
    , m_events(Timeline::byEra(ContentLibrary::shared().timeline()))
{
    showRows<const TimelineEvent *>(m_events,
        {
            { "eventID", &TimelineEvent::id },
            { "year", [](const TimelineEvent *event) { return QString::number(event->year); } },
            { "title", &TimelineEvent::title },
            { "era", &TimelineEvent::era },
            { "selected",
                [](const TimelineEvent *event) {
                    return AppModel::shared().eventID() == event->id;
                } },
        });
    connect(&AppModel::shared(), &AppModel::eventIDChanged, this, [this] {
        refresh("selected");
        Q_EMIT selectedRowChanged();
    });
}

int EventList::selectedRow() const
{
    const AppModel::OptionalText &id = AppModel::shared().eventID();
    const auto found = std::find_if(m_events.begin(), m_events.end(),
        [&id](const TimelineEvent *event) { return id == event->id; });
    return found == m_events.end() ? -1 : int(found - m_events.begin());
}

void EventList::open(int row) const
{
    if (row >= 0 && row < m_events.size())
        AppModel::shared().setEventID(m_events.at(row)->id);
}
