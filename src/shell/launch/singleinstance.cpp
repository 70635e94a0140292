#include "shell/launch/singleinstance.h"

#include "kit/ownersonly.h"
#include "shell/info.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QThread>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <csignal>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

constexpr int kPatience = 2000; // ms
constexpr int kPause = 20;      // ms
constexpr qint64 kLongestToken = 4096;
constexpr qint64 kLongestRequest = 64;

#ifdef Q_OS_UNIX
bool isAlive(qint64 process)
{
    return ::kill(pid_t(process), 0) == 0 || errno != ESRCH;
}

// Whether nobody else can put something into a folder, rename it there or take it away.
bool isClosedToOthers(const QString &folder)
{
    struct stat status;
    return ::stat(QFile::encodeName(folder).constData(), &status) == 0 && S_ISDIR(status.st_mode)
        && status.st_uid == ::geteuid() && (status.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

// Takes away what isn't of this kind or not this user's: others may have put it there while they
// could. A link or a pipe in a lock's place would lead astray or keep the launch waiting. False if
// it can't be taken away.
bool clearOfOthers(const QString &path, mode_t kind)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat status;
    if (::lstat(name.constData(), &status) != 0)
        return errno == ENOENT;
    if ((status.st_mode & S_IFMT) == kind && status.st_uid == ::geteuid())
        return true;
    return ::unlink(name.constData()) == 0;
}

bool isFitFor(const QString &folder, const QString &lock, const QString &socket)
{
    return isClosedToOthers(folder) && clearOfOthers(lock, S_IFREG)
        && clearOfOthers(socket, S_IFSOCK);
}

// Whether the process at the other end runs for this user.
bool isOfThisUser(const QLocalSocket &socket)
{
    const int descriptor = int(socket.socketDescriptor());
#ifdef Q_OS_LINUX
    ucred peer{};
    socklen_t size = sizeof(peer);
    return ::getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0
        && peer.uid == ::geteuid();
#else
    uid_t user = 0;
    gid_t group = 0;
    return ::getpeereid(descriptor, &user, &group) == 0 && user == ::geteuid();
#endif
}
#else
bool isAlive(qint64)
{
    return true;
}

// The rights of the user's profile keep others out, and a socket is made for its user alone.
bool isFitFor(const QString &, const QString &, const QString &)
{
    return true;
}

bool isOfThisUser(const QLocalSocket &)
{
    return true;
}
#endif

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
    const OwnersOnly ownersOnly;
    // Where others can meddle there is no telling who answers: better two cameras than none.
    if (!isFitFor(folder, m_lock.fileName(), m_socketPath)) {
        m_first = true;
        return;
    }
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
            if (!isOfThisUser(*caller)) {
                delete caller;
                continue;
            }
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
    for (;;) {
        const Answer answer = ask(line, deadline);
        if (answer == Answer::Given)
            return;
        if (answer == Answer::OfAStranger) {
            m_first = true;
            return;
        }
        const OwnersOnly ownersOnly;
        m_first = takeLock();
        if (m_first)
            return listen();
        if (deadline.hasExpired())
            return;
        QThread::msleep(kPause);
    }
}

SingleInstance::Answer SingleInstance::ask(
    const QByteArray &line, const QDeadlineTimer &deadline) const
{
    QLocalSocket first;
    first.connectToServer(m_socketPath);
    if (!first.waitForConnected(int(deadline.remainingTime())))
        return Answer::None;
    if (!isOfThisUser(first))
        return Answer::OfAStranger;
    first.write(line);
    return first.waitForReadyRead(int(deadline.remainingTime())) ? Answer::Given : Answer::None;
}
