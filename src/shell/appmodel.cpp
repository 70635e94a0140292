#include "shell/appmodel.h"

#include "content/contentkind.h"
#include "content/contentlibrary.h"
#include "content/text.h"
#include "store/hverror.h"

using namespace Qt::StringLiterals;

AppModel &AppModel::shared()
{
    static AppModel model;
    return model;
}

AppModel::AppModel(QObject *parent)
    : QObject(parent)
{ }

template <typename T>
void AppModel::set(T &field, const T &value, void (AppModel::*changed)())
{
    if (field == value)
        return;
    field = value;
    Q_EMIT(this->*changed)();
}

void AppModel::setScreen(Screen screen)
{
    set(m_screen, screen, &AppModel::screenChanged);
}

void AppModel::setModuleID(const OptionalText &id)
{
    set(m_moduleID, id, &AppModel::moduleIDChanged);
}

void AppModel::setLessonID(const OptionalText &id)
{
    set(m_lessonID, id, &AppModel::lessonIDChanged);
}

void AppModel::setQuizModuleID(const OptionalText &id)
{
    set(m_quizModuleID, id, &AppModel::quizModuleIDChanged);
}

void AppModel::setGearID(const OptionalText &id)
{
    set(m_gearID, id, &AppModel::gearIDChanged);
}

void AppModel::setEventID(const OptionalText &id)
{
    set(m_eventID, id, &AppModel::eventIDChanged);
}

void AppModel::setVideoID(const OptionalText &id)
{
    set(m_videoID, id, &AppModel::videoIDChanged);
}

void AppModel::setSoftwareID(const OptionalText &id)
{
    set(m_softwareID, id, &AppModel::softwareIDChanged);
}

void AppModel::setGearQuery(const QString &query)
{
    set(m_gearQuery, query, &AppModel::gearQueryChanged);
}

void AppModel::setGlobalQuery(const QString &query)
{
    set(m_globalQuery, query, &AppModel::globalQueryChanged);
}

bool AppModel::showsResults() const
{
    return !Text::trimmedBlanks(m_globalQuery).isEmpty();
}

void AppModel::setNoteDraft(const std::optional<Note> &note)
{
    set(m_noteDraft, note, &AppModel::noteDraftChanged);
}

void AppModel::setMessage(const OptionalText &message)
{
    set(m_message, message, &AppModel::messageChanged);
}

void AppModel::setSim(const SimSettings &settings)
{
    set(m_sim, settings, &AppModel::simChanged);
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
    const QDateTime now = QDateTime::currentDateTimeUtc();
    setNoteDraft(Note{ .targetType = type, .targetID = id, .created = now, .updated = now });
}
