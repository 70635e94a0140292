#include "screens/course/private/lessonreading.h"

#include "screens/common/storefollower.h"
#include "screens/course/courseflow.h"

#include "content/contentkind.h"
#include "content/contentlibrary.h"
#include "shell/appmodel.h"

using namespace Qt::StringLiterals;

LessonReading::LessonReading(QObject *parent)
    : QObject(parent)
{
    followStore(this, &LessonReading::marksChanged);
}

const Lesson *LessonReading::lesson() const
{
    return ContentLibrary::shared().lesson(m_lessonID);
}

void LessonReading::setLessonID(const QString &id)
{
    if (m_lessonID == id)
        return;
    m_lessonID = id;

    const ContentLibrary &library = ContentLibrary::shared();
    QList<ItemList::Item> gear;
    QList<ItemList::Item> videos;
    if (const Lesson *found = lesson()) {
        for (const QString &gearID : found->gear) {
            if (const GearEntry *entry = library.gearEntry(gearID))
                gear.append({ entry->id, entry->name });
        }
        for (const QString &videoID : found->videos) {
            if (const Video *video = library.video(videoID))
                videos.append({ video->id, video->title + u" — "_s + video->channel });
        }
    }
    m_gear.setItems(gear);
    m_videos.setItems(videos);
    Q_EMIT lessonChanged();
    Q_EMIT marksChanged();
}

QString LessonReading::moduleTitle() const
{
    const Lesson *found = lesson();
    const Module *module = found ? ContentLibrary::shared().module(found->moduleID) : nullptr;
    return module ? module->title.toUpper() : QString();
}

QString LessonReading::title() const
{
    const Lesson *found = lesson();
    return found ? found->title : QString();
}

QString LessonReading::body() const
{
    const Lesson *found = lesson();
    return found ? found->body : QString();
}

int LessonReading::minutes() const
{
    const Lesson *found = lesson();
    return found ? int(found->minutes) : 0;
}

bool LessonReading::hasPrevious() const
{
    return lessonNeighbours(m_lessonID, ContentLibrary::shared()).previous;
}

bool LessonReading::hasNext() const
{
    return lessonNeighbours(m_lessonID, ContentLibrary::shared()).next;
}

bool LessonReading::finished() const
{
    const UserStore *store = UserStore::shared();
    return store && store->isComplete(m_lessonID);
}

bool LessonReading::bookmarked() const
{
    return hasBookmark(ContentKind::lesson, m_lessonID);
}

void LessonReading::setFinished(bool finished)
{
    if (UserStore *store = UserStore::shared())
        AppModel::shared().run([&] { store->setComplete(m_lessonID, finished); });
}

void LessonReading::toggleFinished()
{
    setFinished(!finished());
}

void LessonReading::toggleBookmark()
{
    AppModel::shared().toggleBookmark(ContentKind::lesson, m_lessonID);
}

void LessonReading::addNote()
{
    AppModel::shared().newNote(ContentKind::lesson, m_lessonID);
}

void LessonReading::goToPrevious()
{
    if (const Lesson *previous = lessonNeighbours(m_lessonID, ContentLibrary::shared()).previous) {
        AppModel::shared().setLessonID(previous->id);
        AppModel::shared().setModuleID(previous->moduleID);
    }
}

void LessonReading::finishAndGoOn()
{
    if (!finished())
        setFinished(true);
    if (const Lesson *next = lessonNeighbours(m_lessonID, ContentLibrary::shared()).next) {
        AppModel::shared().setLessonID(next->id);
        AppModel::shared().setModuleID(next->moduleID);
    }
}
