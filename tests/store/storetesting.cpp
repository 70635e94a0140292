#include "store/storetesting.h"

#include "store/sqlitedb.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QProcessEnvironment>

using namespace Qt::StringLiterals;

namespace {

// A child that says nothing for so long hangs.
constexpr int kPatience = 60000; // ms

} // namespace

namespace StoreTesting {

Folder::Folder()
{
    if (!m_folder.isValid())
        qFatal("No scratch folder: %s", qPrintable(m_folder.errorString()));
}

QString Folder::path(const QString &name) const
{
    return name.isEmpty() ? m_folder.path() : m_folder.filePath(name);
}

Fingerprint fingerprint(const QString &folder)
{
    constexpr auto everything
        = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

    Fingerprint entries;
    for (const QFileInfo &entry : QDir(folder).entryInfoList(everything)) {
        if (entry.isSymLink())
            entries.insert(entry.fileName(), "link to " + entry.symLinkTarget().toUtf8());
        else if (entry.isDir())
            entries.insert(entry.fileName(), "folder");
        else if (!entry.isFile())
            entries.insert(entry.fileName(), "no regular file");
        else
            entries.insert(entry.fileName(),
                QCryptographicHash::hash(fileBytes(entry.filePath()), QCryptographicHash::Sha256));
    }
    return entries;
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
}

QByteArray fileBytes(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
    return file.readAll();
}

QString integrity(const QString &path)
{
    return SQLiteDB(path).query(u"PRAGMA integrity_check"_s).constFirst().str(u"integrity_check"_s);
}

Child::Child(const QStringList &arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"TMPDIR"_s, m_temporary.path());
    m_process.setProcessEnvironment(environment);
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QStringLiteral(HV_STORE_TEST_CHILD), arguments);
    if (!m_process.waitForStarted())
        qFatal("%s", qPrintable(m_process.errorString()));
}

Child::~Child()
{
    m_process.kill();
    m_process.waitForFinished();
}

std::optional<QString> Child::line()
{
    while (!m_process.canReadLine()) {
        if (!m_process.waitForReadyRead(kPatience)) {
            if (m_process.state() == QProcess::Running)
                qFatal("The child process hangs.");
            break;
        }
    }
    // Half a line, left by a child that was killed, doesn't count.
    if (!m_process.canReadLine())
        return std::nullopt;
    return QString::fromUtf8(m_process.readLine()).chopped(1);
}

void Child::request()
{
    m_process.write("\n");
    m_process.waitForBytesWritten(kPatience);
}

QStringList Child::remainingLines()
{
    QStringList lines;
    while (const std::optional<QString> next = line())
        lines.append(*next);
    return lines;
}

} // namespace StoreTesting
