#include "screens/quickworld.h"

#include "content/contentlibrary.h"
#include "kit/netstatus.h"
#include "kit/opener.h"
#include "kit/preferences.h"
#include "kit/themes.h"
#include "shell/appmodel.h"
#include "shell/setup.h"
#include "store/dateformatter.h"
#include "store/userstore.h"

#include <QClipboard>
#include <QFile>
#include <QPointer>
#include <QQuickWindow>
#include <QtQml/qqml.h>

#include <tuple>

using namespace Qt::StringLiterals;
using CourseTesting::Course;
using CourseTesting::World;

std::unique_ptr<World> QuickWorld::s_world;
QStringList QuickWorld::s_visited;

namespace {

AppModel &model()
{
    return AppModel::shared();
}

Course courseNamed(const QString &name)
{
    if (name == "small"_L1)
        return Course::Small;
    if (name == "library"_L1)
        return Course::Library;
    if (name == "films"_L1)
        return Course::Films;
    if (name == "bare"_L1)
        return Course::Bare;
    if (name == "empty"_L1)
        return Course::Empty;
    qFatal("There is no such course among those of the tests.");
}

AppModel::OptionalText orNothing(const QString &id)
{
    return id.isEmpty() ? AppModel::OptionalText() : id;
}

QString orNone(const AppModel::OptionalText &id)
{
    return id.value_or(u"none"_s);
}

} // namespace

void QuickWorld::registerType()
{
    qmlRegisterSingletonType<QuickWorld>("Halvorin.Testing", 1, 0, "World",
        [](QQmlEngine *, QJSEngine *) -> QObject * { return new QuickWorld; });
}

void QuickWorld::end()
{
    s_world.reset();
}

void QuickWorld::begin(const QString &course, bool withStore)
{
    s_world.reset();
    // Otherwise a window opens as the last one was left.
    Preferences::shared().remove(u"crvn.frame.main"_s);
    s_world = std::make_unique<World>(
        courseNamed(course), withStore ? World::Store::Fresh : World::Store::None);
    s_visited.clear();
    NetStatus::setOverride(true);
    Opener::setAction([](const QUrl &address) { s_visited.append(address.toString()); });
}

void QuickWorld::finish(const QStringList &lessons)
{
    for (const QString &id : lessons)
        UserStore::shared()->setComplete(id, true);
}

void QuickWorld::finishAll()
{
    finish(CourseTesting::lessonIDs());
}

QStringList QuickWorld::finishedLessons() const
{
    QStringList lessons = UserStore::shared()->completedLessons().values();
    lessons.sort();
    return lessons;
}

bool QuickWorld::isBookmarked(const QString &type, const QString &id) const
{
    return UserStore::shared()->isBookmarked(type, id);
}

void QuickWorld::fillDisk()
{
    World::fillDisk();
}

QString QuickWorld::moduleID() const
{
    return orNone(model().moduleID());
}

QString QuickWorld::lessonID() const
{
    return orNone(model().lessonID());
}

QString QuickWorld::quizModuleID() const
{
    return orNone(model().quizModuleID());
}

QString QuickWorld::gearID() const
{
    return orNone(model().gearID());
}

QString QuickWorld::eventID() const
{
    return orNone(model().eventID());
}

void QuickWorld::chooseGear(const QString &id)
{
    model().setGearID(orNothing(id));
}

void QuickWorld::chooseEvent(const QString &id)
{
    model().setEventID(orNothing(id));
}

void QuickWorld::chooseSoftware(const QString &id)
{
    model().setSoftwareID(orNothing(id));
}

void QuickWorld::chooseVideo(const QString &id)
{
    model().setVideoID(orNothing(id));
}

void QuickWorld::setOnline(bool online)
{
    NetStatus::setOverride(online);
}

QStringList QuickWorld::visitedAddresses() const
{
    return s_visited;
}

QString QuickWorld::videoID() const
{
    return orNone(model().videoID());
}

void QuickWorld::showQuiz(const QString &moduleID)
{
    model().setLessonID({});
    model().setQuizModuleID(moduleID);
}

void QuickWorld::tell(const QString &message)
{
    model().setMessage(message);
}

QString QuickWorld::message() const
{
    return model().messageText();
}

QString QuickWorld::noteTarget() const
{
    const std::optional<Note> &note = model().noteDraft();
    return note ? note->targetType + u' ' + note->targetID : u"none"_s;
}

void QuickWorld::addNote(const QString &type, const QString &id, const QString &body)
{
    Note note{ .targetType = type, .targetID = id, .body = body };
    UserStore::shared()->save(note);
    // The clock may not have moved on since the last one; the order of the tests is that of calls.
    SQLiteDB(s_world->progressPath())
        .run(u"UPDATE notes SET updated = updated + id * 0.001 WHERE id = ?"_s, { note.id });
}

QStringList QuickWorld::noteBodies() const
{
    QStringList bodies;
    for (const Note &note : UserStore::shared()->notes())
        bodies.append(note.body);
    return bodies;
}

void QuickWorld::editNote()
{
    model().setNoteDraft(UserStore::shared()->notes().constFirst());
}

void QuickWorld::loseNotes()
{
    SQLiteDB(s_world->progressPath()).exec(u"DELETE FROM notes"_s);
}

void QuickWorld::setBookmark(const QString &type, const QString &id)
{
    UserStore::shared()->setBookmark(type, id, true);
    SQLiteDB(s_world->progressPath())
        .run(u"UPDATE bookmarks SET created = created + rowid * 0.001 WHERE target_id = ?"_s,
            { id });
}

void QuickWorld::keepMany(int notes, int bookmarks)
{
    SQLiteDB file(s_world->progressPath());
    file.transaction([&] {
        for (int i = 0; i < notes; ++i) {
            // From one line to several.
            file.run(u"INSERT INTO notes (target_type, target_id, body, created, updated) "
                     "VALUES ('lesson', 'l1', ?, ?, ?)"_s,
                { QString(u"Note %1. "_s.arg(i)
                      + u"The light falls from the left. "_s.repeated(i % 23)),
                    i, i });
        }
        for (int i = 0; i < bookmarks; ++i) {
            file.run(
                u"INSERT INTO bookmarks VALUES ('gear', ?, ?)"_s, { u"bookmark %1"_s.arg(i), i });
        }
    });
}

void QuickWorld::addScore(const QString &moduleID, int score, int total, int daysAgo)
{
    UserStore::shared()->saveQuiz(
        moduleID, score, total, QDateTime::currentDateTimeUtc().addDays(-daysAgo));
}

QStringList QuickWorld::scores(const QString &moduleID) const
{
    QStringList scores;
    for (const QuizResult &result : UserStore::shared()->quizResults(moduleID))
        scores.append(u"%1/%2"_s.arg(result.score).arg(result.total));
    return scores;
}

QString QuickWorld::day(int daysAgo) const
{
    return DateFormatter().day(QDateTime::currentDateTimeUtc().addDays(-daysAgo));
}

void QuickWorld::answerSavePanel(const QString &name, QObject *gone)
{
    model().setSavePanel([path = s_world->path(name), isAnswered = !name.isEmpty(),
                             gone = QPointer(gone)](const QString &) {
        delete gone;
        return isAnswered ? std::optional(path) : std::nullopt;
    });
}

QString QuickWorld::text(const QString &name) const
{
    QFile file(s_world->path(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString QuickWorld::exportText() const
{
    return UserStore::shared()->exportText(ContentLibrary::shared());
}

QVariantList QuickWorld::screens() const
{
    QVariantList rows;
    for (const ScreenInfo &info : allScreens()) {
        rows.append(QVariantMap{ { u"screen"_s, int(info.screen) }, { u"title"_s, info.title },
            { u"shortTitle"_s, info.shortTitle }, { u"symbol"_s, info.symbol },
            { u"component"_s, info.component } });
    }
    return rows;
}

void QuickWorld::chooseTheme(const QString &id)
{
    CRVNThemes::setCurrentID(id);
}

QString QuickWorld::copiedText() const
{
    return QGuiApplication::clipboard()->text();
}

void QuickWorld::settle(QQuickItem *item)
{
    std::ignore = item->window()->grabWindow();
}

void ScreensSetup::applicationAvailable()
{
    QuickSetup::applicationAvailable();
    HVSetup::configure();
    QuickWorld::registerType();
}
