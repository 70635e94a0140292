#include "shell/setup.h"

#include "content/contentlibrary.h"
#include "kit/fonts.h"
#include "kit/kit.h"
#include "shell/appmodel.h"
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
    CRVNKit::install({ .name = HVInfo::appName, .extraThemes = HVThemes::extras() });
}

void prepareCourse()
{
    std::ignore = ContentLibrary::shared();
}

CameraBody::Body firstBody(double ratio, const HVColors &colors)
{
    constexpr QSize kSize(1412, 892);
    return { .size = kSize,
        .display = QRectF(248, 155, 1104, 674),
        .colors = colors,
        .pixels = (QSizeF(kSize) * ratio).toSize() };
}

CameraBody::Glass firstGlass(double ratio, const HVColors &colors)
{
    constexpr QSize kSize(1104, 764);
    return { .size = kSize, .colors = colors, .pixels = (QSizeF(kSize) * ratio).toSize() };
}

QList<QFont> firstFonts()
{
    using Fonts::rounded;
    return {
        rounded(8.5, QFont::Bold),
        rounded(8.5, QFont::Black),
        rounded(9, QFont::Black),
        rounded(9.5, QFont::ExtraBold),
        rounded(10, QFont::ExtraBold),
        rounded(11, QFont::DemiBold),
        rounded(11, QFont::ExtraBold),
        rounded(11.5),
        rounded(12.5),
        rounded(12.5, QFont::Medium),
        rounded(12.5, QFont::Bold),
        rounded(13, QFont::Medium),
        rounded(13, QFont::ExtraBold),
        rounded(13.5),
        rounded(14, QFont::ExtraBold),
        rounded(21, QFont::ExtraBold),
        rounded(30, QFont::ExtraBold),
        Fonts::monospaced(11, QFont::Bold),
    };
}

void openStore()
{
    const QUrl url = HVInfo::databaseURL();
    try {
        UserStore::setShared(openProgressFile(url));
        return;
    } catch (const HVError &error) {
        tellLater("Your progress file could not be opened ("_L1 + error.description()
            + "). It was left untouched at "_L1 + QDir::toNativeSeparators(url.toLocalFile())
            + ". A new, empty progress file was started instead."_L1);
    }
    try {
        UserStore::setShared(openProgressFile(stopgapURL()));
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
