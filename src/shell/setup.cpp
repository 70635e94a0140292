#include "shell/setup.h"

#include "camera/appicon.h"
#include "camera/hvcolors.h"
#include "content/contentlibrary.h"
#include "kit/about.h"
#include "kit/kit.h"
#include "kit/ownersonly.h"
#include "shell/appmodel.h"
#include "shell/help/helptopics.h"
#include "shell/info.h"
#include "store/hverror.h"
#include "store/rehearsal.h"
#include "store/userstore.h"

#include <QDateTime>
#include <QDir>
#include <QThread>
#include <QTimer>

#include <tuple>

using namespace Qt::StringLiterals;

namespace {

// AppModel must not change while the scene is being built.
void tellLater(const QString &message)
{
    QTimer::singleShot(
        0, &AppModel::shared(), [message] { AppModel::shared().setMessage(message); });
}

// An older version, a backup or a copy by hand may have left a file that others can read.
void keepToOwner(const QString &file)
{
    for (const auto companion : { ""_L1, "-wal"_L1, "-shm"_L1 })
        OwnersOnly::tighten(file + companion);
}

QUrl stopgapURL()
{
    const QString seconds = QString::number(QDateTime::currentSecsSinceEpoch());
    return QUrl::fromLocalFile(
        HVInfo::dataFolder() + "/My Progress (opened "_L1 + seconds + ").sqlite"_L1);
}

} // namespace

namespace HVSetup {

void configure()
{
    CRVNThemes::setDefaultID(HVThemes::brassID);
    CRVNKit::install({
        .name = HVInfo::appName,
        .version = { .number = HVInfo::version(), .build = HVInfo::build() },
        .website = HVInfo::website(),
        .paintIcon = AppIcon::paint,
        // Not the texts themselves: they tell of the course, which isn't read yet.
        .helpTopics = [] { return HVHelp::topics(); },
        .extraThemes = HVThemes::extras(),
    });
    CRVNAbout::setExtraLines({
        u"A complete photography course: lessons, labs, history, gear and videos."_s,
        "Product specs, video links and history sources checked "_L1 + HVInfo::checkedISO + u'.',
    });
}

void prepareCourse()
{
    std::ignore = ContentLibrary::shared();
}

void openStore()
{
    const QUrl url = HVInfo::databaseURL();
    try {
        UserStore::setShared(Store::openProgressFile(url));
        if (qEnvironmentVariableIsEmpty("HV_DB_PATH"))
            keepToOwner(url.toLocalFile());
        return;
    } catch (const HVError &error) {
        tellLater("Your progress file could not be opened ("_L1 + error.description()
            + "). It was left untouched at "_L1 + QDir::toNativeSeparators(url.toLocalFile())
            + ". A new, empty progress file was started instead."_L1);
    }
    try {
        UserStore::setShared(Store::openProgressFile(stopgapURL()));
    } catch (const HVError &) {
        // One message is enough: without a store the program still teaches, it only forgets.
        UserStore::setShared(nullptr);
    }
}

std::unique_ptr<QThread> indexCourse()
{
    const ContentLibrary &course = ContentLibrary::shared();
    std::unique_ptr<QThread> thread(QThread::create([&course] { std::ignore = course.index(); }));
    QObject::connect(thread.get(), &QThread::finished, &AppModel::shared(), [&course] {
        const QStringList errors = course.loadErrors();
        if (!errors.isEmpty())
            AppModel::shared().setMessage(
                "Some course files could not be read: "_L1 + errors.join("; "_L1));
    });
    thread->start();
    return thread;
}

} // namespace HVSetup
