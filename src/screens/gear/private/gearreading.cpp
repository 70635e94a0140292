#include "screens/gear/private/gearreading.h"

#include "screens/common/storefollower.h"
#include "screens/gear/gearshelf.h"

#include "content/contentkind.h"
#include "content/contentlibrary.h"
#include "shell/appmodel.h"
#include "shell/info.h"

GearReading::GearReading(QObject *parent)
    : QObject(parent)
{
    followStore(this, &GearReading::marksChanged);
}

const GearEntry &GearReading::entry() const
{
    static const GearEntry none;
    const GearEntry *found = ContentLibrary::shared().gearEntry(m_entryID);
    return found ? *found : none;
}

void GearReading::setEntryID(const QString &id)
{
    if (m_entryID == id)
        return;
    m_entryID = id;

    QList<ItemList::Item> related;
    for (const QString &relatedID : entry().see) {
        if (const GearEntry *found = ContentLibrary::shared().gearEntry(relatedID))
            related.append({ found->id, found->name });
    }
    m_seeAlso.setItems(related);
    m_examples.setExamples(entry().models);
    Q_EMIT entryChanged();
    Q_EMIT marksChanged();
}

QString GearReading::name() const
{
    return entry().name;
}

QString GearReading::category() const
{
    return entry().category;
}

QString GearReading::alsoCalled() const
{
    return GearShelf::alsoCalled(entry());
}

QString GearReading::diagram() const
{
    return entry().diagram;
}

QString GearReading::body() const
{
    return entry().body;
}

QString GearReading::specsNote() const
{
    return HVInfo::specsNote;
}

bool GearReading::isBookmarked() const
{
    return hasBookmark(ContentKind::gear, m_entryID);
}

void GearReading::toggleBookmark()
{
    AppModel::shared().toggleBookmark(ContentKind::gear, m_entryID);
}

void GearReading::addNote()
{
    AppModel::shared().newNote(ContentKind::gear, m_entryID);
}

void GearReading::open(const QString &entryID)
{
    AppModel::shared().setGearID(entryID);
}
