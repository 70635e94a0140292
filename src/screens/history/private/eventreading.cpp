#include "screens/history/private/eventreading.h"

#include "screens/common/storefollower.h"
#include "screens/history/timeline.h"

#include "content/contentkind.h"
#include "content/contentlibrary.h"
#include "shell/appmodel.h"

EventReading::EventReading(QObject *parent)
    : QObject(parent)
{
    followStore(this, &EventReading::marksChanged);
    connect(&AppModel::shared(), &AppModel::eventIDChanged, this, &EventReading::follow);
    follow();
}

void EventReading::follow()
{
    const TimelineEvent *event
        = Timeline::open(AppModel::shared().eventID(), ContentLibrary::shared().timeline());
    if (event == m_event)
        return;
    m_event = event;
    m_sources.setSources(event->sources);
    Q_EMIT eventChanged();
    Q_EMIT marksChanged();
}

QString EventReading::eventID() const
{
    return m_event ? m_event->id : QString();
}

QString EventReading::era() const
{
    return m_event ? m_event->era : QString();
}

QString EventReading::dateText() const
{
    return m_event ? m_event->dateText : QString();
}

QString EventReading::title() const
{
    return m_event ? m_event->title : QString();
}

QString EventReading::body() const
{
    return m_event ? m_event->body : QString();
}

bool EventReading::isBookmarked() const
{
    return m_event && hasBookmark(ContentKind::history, m_event->id);
}

void EventReading::toggleBookmark()
{
    if (m_event)
        AppModel::shared().toggleBookmark(ContentKind::history, m_event->id);
}

void EventReading::addNote()
{
    if (m_event)
        AppModel::shared().newNote(ContentKind::history, m_event->id);
}
