#include "shell/info.h"

#include "kit/ownersonly.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <tuple>

namespace {

// An environment variable that is set but empty counts as not set. The text stays as it is: to take
// "link/.." out of it would lead elsewhere than the link does, and what begins with ":" would be a
// resource of the program to Qt unless it stands behind a folder.
QString environmentPath(const char *name)
{
    const QString path = qEnvironmentVariable(name);
    const bool isWhole = path.isEmpty() || (QDir::isAbsolutePath(path) && !path.startsWith(u':'));
    return isWhole ? path : QDir::currentPath() + u'/' + path;
}

// A folder beside the executable, else the one under the prefix of its installation.
QString besideOrInstalled(const QString &name, const QString &installed)
{
    const QDir executable(QCoreApplication::applicationDirPath());
    const QString beside = executable.filePath(name);
    if (QFileInfo(beside).isDir())
        return beside;
    return QDir::cleanPath(executable.filePath(QStringLiteral("../") + installed));
}

} // namespace

namespace HVInfo {

QUrl website()
{
    const QUrl url(QStringLiteral("https://corvane.example"), QUrl::StrictMode);
    Q_ASSERT(url.isValid());
    return url;
}

QString version()
{
    return QStringLiteral(HV_VERSION);
}

QString build()
{
    return QStringLiteral(HV_BUILD);
}

QString dataFolderPath()
{
    const QString base = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (base.isEmpty())
        qFatal("This platform names no folder for application data.");
    // A user without a home has the root, which the platform writes with a slash too many.
    return QDir::cleanPath(base + QStringLiteral("/CRVN Halvorin"));
}

QString dataFolder()
{
    const QString folder = dataFolderPath();
    // What the user writes is nobody else's business, and who can write to a folder above it could
    // put another in its place.
    const OwnersOnly ownersOnly;
    if (QDir().mkpath(folder))
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return folder;
}

QString databasePath()
{
    const QString path = environmentPath("HV_DB_PATH");
    return path.isEmpty() ? dataFolderPath() + QStringLiteral("/My Progress.sqlite") : path;
}

QUrl databaseURL()
{
    if (qEnvironmentVariableIsEmpty("HV_DB_PATH"))
        std::ignore = dataFolder();
    return QUrl::fromLocalFile(databasePath());
}

QString contentFolder()
{
    const QString path = environmentPath("HV_CONTENT");
    if (!path.isEmpty())
        return path;

    return besideOrInstalled(
        QStringLiteral("content"), QStringLiteral("share/crvn-halvorin/content"));
}

QString pluginFolder()
{
    return besideOrInstalled(QStringLiteral("plugins"), QStringLiteral("lib/crvn-halvorin"));
}

} // namespace HVInfo
