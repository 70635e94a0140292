#include "shell/launch/singleinstance.h"

#include "shell/info.h"

#include <QDir>
#include <QStandardPaths>
#include <QThread>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <csignal>
#endif

using namespace Qt::StringLiterals;

namespace {

constexpr int kPatience = 2000; // ms
constexpr int kPause = 20;      // ms
constexpr qint64 kLongestToken = 4096;
constexpr qint64 kLongestRequest = 64;

bool isAlive(qint64 process)
{
#ifdef Q_OS_UNIX
    return ::kill(pid_t(process), 0) == 0 || errno != ESRCH;
#else
    Q_UNUSED(process)
    return true;
#endif
}

// The same for all launches of a user, wherever they are made from. Qt has a stand-in for a runtime
// folder that is unset or unfit, but among the temporary files, whose place may change.
QString usualFolder()
{
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    const bool isFit = !folder.isEmpty()
        && QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) == folder;
    return isFit ? folder : HVInfo::dataFolder();
}

} // namespace

SingleInstance::SingleInstance(QObject *parent)
    : SingleInstance(usualFolder(), parent)
{ }

SingleInstance::SingleInstance(const QString &folder, QObject *parent)
    : QObject(parent)
    , m_socketPath(QDir(folder).filePath(u"crvn-halvorin.socket"_s))
    , m_lock(QDir(folder).filePath(u"crvn-halvorin.lock"_s))
{
    // Never stale by age: a camera may stay open for weeks. A dead owner is noticed by its id.
    m_lock.setStaleLockTime(0);
    m_first = takeLock();
    if (m_first)
        listen();
}

bool SingleInstance::takeLock()
{
    if (m_lock.tryLock() || m_lock.error() != QLockFile::LockFailedError)
        return true;

    qint64 holder = 0;
    QString host;
    QString program;
    if (m_lock.getLockInfo(&holder, &host, &program))
        return !isAlive(holder); // It lies where it can't be taken away.
    // Nobody's name in it: its process was killed while it made it.
    return m_lock.removeStaleLockFile() && m_lock.tryLock();
}

void SingleInstance::listen()
{
    // The lock is ours, so a socket that lies there belongs to a dead process.
    QLocalServer::removeServer(m_socketPath);
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket *caller = m_server.nextPendingConnection()) {
            caller->setReadBufferSize(kLongestRequest + 1 + kLongestToken + 1);
            connect(caller, &QLocalSocket::readyRead, this, [this, caller] { hear(caller); });
            connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
        }
    });
    m_server.listen(m_socketPath);
}

void SingleInstance::hear(QLocalSocket *caller)
{
    if (!caller->canReadLine())
        return;
    const QByteArray line = caller->readLine().chopped(1);
    caller->write("\n");
    caller->flush();
    const qsizetype blank = line.indexOf(' ');
    Q_EMIT called(
        { .activationToken = line.mid(blank + 1), .request = line.first(qMax(blank, 0)) });
}

void SingleInstance::callFirst(const Call &call)
{
    Q_ASSERT(!call.request.contains(' ') && call.request.size() <= kLongestRequest);
    // The request goes first: a token is the desktop's own, and may hold blanks.
    const QByteArray line = call.request + ' ' + call.activationToken.left(kLongestToken) + '\n';
    const QDeadlineTimer deadline(kPatience);
    // The first instance may have its lock and not its socket yet, or be about to end.
    while (!isAnswered(line, deadline)) {
        m_first = takeLock();
        if (m_first)
            return listen();
        if (deadline.hasExpired())
            return;
        QThread::msleep(kPause);
    }
}

bool SingleInstance::isAnswered(const QByteArray &line, const QDeadlineTimer &deadline) const
{
    QLocalSocket first;
    first.connectToServer(m_socketPath);
    if (!first.waitForConnected(int(deadline.remainingTime())))
        return false;
    first.write(line);
    return first.waitForReadyRead(int(deadline.remainingTime()));
}
