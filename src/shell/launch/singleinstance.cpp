#include "shell/launch/singleinstance.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QLocalSocket>
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

bool isAlive(qint64 process)
{
#ifdef Q_OS_UNIX
    return ::kill(pid_t(process), 0) == 0 || errno != ESRCH;
#else
    Q_UNUSED(process)
    return true;
#endif
}

} // namespace

SingleInstance::SingleInstance(QObject *parent)
    : SingleInstance(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation), parent)
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

SingleInstance::~SingleInstance()
{
    // Callers that are still connected lose their socket with the server; that is no call.
    for (QLocalSocket *caller : m_server.findChildren<QLocalSocket *>())
        caller->disconnect(this);
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
            connect(caller, &QLocalSocket::disconnected, this, [this, caller] {
                Q_EMIT called(caller->read(kLongestToken));
                caller->deleteLater();
            });
        }
    });
    m_server.listen(m_socketPath);
}

void SingleInstance::callFirst(const QByteArray &activationToken)
{
    // The first instance may have its lock and not its socket yet.
    QLocalSocket socket;
    const QDeadlineTimer deadline(kPatience);
    for (;;) {
        socket.connectToServer(m_socketPath, QIODevice::WriteOnly);
        if (socket.waitForConnected(int(deadline.remainingTime())))
            break;
        if (deadline.hasExpired())
            return;
        QThread::msleep(kPause);
    }
    socket.write(activationToken.left(kLongestToken));
    socket.disconnectFromServer();
    if (socket.state() != QLocalSocket::UnconnectedState)
        socket.waitForDisconnected(int(deadline.remainingTime()));
}
