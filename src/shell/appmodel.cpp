#include "shell/appmodel.h"

#include "content/contentkind.h"
#include "content/contentlibrary.h"
#include "content/text.h"
#include "store/hverror.h"
#include "store/textfile.h"

using namespace Qt::StringLiterals;

AppModel &AppModel::shared()
{
    static AppModel model;
    return model;
}

AppModel::AppModel(QObject *parent)
    : QObject(parent)
{ }

bool AppModel::showsResults() const
{
    return !Text::trimmedBlanks(m_globalQuery).isEmpty();
}

void AppModel::setNoteDraft(const std::optional<Note> &note)
{
    if (m_noteDraft == note)
        return;
    m_noteDraft = note;
    setDraftIsUnsaved(false);
    Q_EMIT noteDraftChanged();
}

void AppModel::openLesson(const QString &id)
{
    const Lesson *lesson = ContentLibrary::shared().lesson(id);
    if (!lesson)
        return;
    setModuleID(lesson->moduleID);
    setLessonID(id);
    setQuizModuleID({});
    setScreen(Screen::Course);
}

void AppModel::openModule(const QString &id)
{
    setModuleID(id);
    setLessonID({});
    setQuizModuleID({});
    setScreen(Screen::Course);
}

void AppModel::openGear(const QString &id)
{
    setGearID(id);
    setScreen(Screen::Gear);
}

void AppModel::openVideo(const QString &id)
{
    setVideoID(id);
    setScreen(Screen::Videos);
}

void AppModel::openEvent(const QString &id)
{
    setEventID(id);
    setScreen(Screen::History);
}

void AppModel::openSoftware(const QString &id)
{
    setSoftwareID(id);
    setScreen(Screen::Workflow);
}

void AppModel::openHit(const QString &kind, const QString &ref)
{
    if (kind == ContentKind::lesson)
        openLesson(ref);
    else if (kind == ContentKind::gear)
        openGear(ref);
    else if (kind == ContentKind::video)
        openVideo(ref);
    else if (kind == ContentKind::history)
        openEvent(ref);
    else if (kind == ContentKind::software)
        openSoftware(ref);
    setGlobalQuery({});
}

void AppModel::openTarget(const QString &type, const QString &id)
{
    if (type == ContentKind::lesson)
        openLesson(id);
    else if (type == ContentKind::gear)
        openGear(id);
    else if (type == ContentKind::video)
        openVideo(id);
    else if (type == ContentKind::history)
        openEvent(id);
    else
        setScreen(Screen::Notes);
}

void AppModel::step(int delta)
{
    setScreen(screenAfter(m_screen, delta));
}

void AppModel::continueCourse()
{
    if (const Lesson *lesson = nextLesson(UserStore::shared()))
        openLesson(lesson->id);
}

const Lesson *AppModel::nextLesson(const UserStore *store) const
{
    const QList<Lesson> &lessons = ContentLibrary::shared().lessons();
    if (lessons.isEmpty())
        return nullptr;
    const QSet<QString> finished = store ? store->completedLessons() : QSet<QString>();
    for (const Lesson &lesson : lessons) {
        if (!finished.contains(lesson.id))
            return &lesson;
    }
    return &lessons.first();
}

void AppModel::run(const std::function<void()> &body)
{
    try {
        body();
    } catch (const HVError &error) {
        setMessage(error.description());
    }
}

void AppModel::toggleBookmark(const QString &type, const QString &id)
{
    UserStore *store = UserStore::shared();
    if (!store)
        return;
    run([&] { store->setBookmark(type, id, !store->isBookmarked(type, id)); });
}

void AppModel::newNote(const QString &type, const QString &id)
{
    if (m_draftIsUnsaved)
        return;
    const QDateTime now = QDateTime::currentDateTimeUtc();
    setNoteDraft(Note{ .targetType = type, .targetID = id, .created = now, .updated = now });
}

void AppModel::exportNotes()
{
    QMetaObject::invokeMethod(this, &AppModel::askAndExport, Qt::QueuedConnection);
}

void AppModel::askAndExport()
{
    const UserStore *store = UserStore::shared();
    if (!store || !m_savePanel)
        return;
    const OptionalText path = m_savePanel(u"Halvorin notes.txt"_s);
    if (!path)
        return;
    try {
        Store::writeTextFile(*path, store->exportText(ContentLibrary::shared()));
    } catch (const HVError &error) {
        setMessage("The notes could not be saved: "_L1 + error.description());
    }
}
