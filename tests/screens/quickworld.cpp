#include "screens/quickworld.h"

#include "kit/themes.h"
#include "shell/appmodel.h"
#include "shell/setup.h"
#include "store/userstore.h"

#include <QClipboard>
#include <QQuickWindow>
#include <QtQml/qqml.h>

#include <tuple>

using namespace Qt::StringLiterals;
using CourseTesting::Course;
using CourseTesting::World;

std::unique_ptr<World> QuickWorld::s_world;

namespace {

AppModel &model()
{
    return AppModel::shared();
}

Course courseNamed(const QString &name)
{
    if (name == "small"_L1)
        return Course::Small;
    if (name == "bare"_L1)
        return Course::Bare;
    if (name == "empty"_L1)
        return Course::Empty;
    qFatal("There is no such course among those of the tests.");
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
    s_world = std::make_unique<World>(
        courseNamed(course), withStore ? World::Store::Fresh : World::Store::None);
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

void QuickWorld::refuseWrites(const QString &reason)
{
    s_world->refuseWrites(reason);
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

QString QuickWorld::noteTarget() const
{
    const std::optional<Note> &note = model().noteDraft();
    return note ? note->targetType + u' ' + note->targetID : u"none"_s;
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
