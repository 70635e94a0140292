#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>

/// The rule that one user runs one camera.
///
/// An exclusive lock file in the user's runtime folder decides; a lock that a killed process left
/// behind is no hindrance. The first instance listens on a local socket beside it, so that later
/// ones can ask it to come to the front.
class SingleInstance : public QObject
{
    Q_OBJECT
public:
    /// Tries to be the first. A runtime folder that can't be written to keeps nobody out: then
    /// this instance counts as the first, and can't be called.
    explicit SingleInstance(QObject *parent = nullptr);
    /// The same with another folder for lock and socket.
    explicit SingleInstance(const QString &folder, QObject *parent = nullptr);
    ~SingleInstance() override;

    [[nodiscard]] bool isFirst() const { return m_first; }

    /// Asks the first instance to come to the front, and waits until the message is delivered or
    /// two seconds have passed. `activationToken` is the desktop's permission to do so; it may be
    /// empty.
    void callFirst(const QByteArray &activationToken);

Q_SIGNALS:
    /// A later launch asks for this instance.
    void called(const QByteArray &activationToken);

private:
    [[nodiscard]] bool takeLock();
    void listen();

    QString m_socketPath;
    QLockFile m_lock;
    QLocalServer m_server;
    bool m_first = false;
};
