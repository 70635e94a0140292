#pragma once

#include <QDeadlineTimer>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QObject>

/// The rule that one user runs one camera.
///
/// An exclusive lock file in the user's runtime folder decides, or in the data folder where the
/// system has no fit one; a lock that a killed process left behind is no hindrance. The first
/// instance listens on a local socket beside it, so that later ones can ask it to come to the
/// front and to show something: a call is one line, and so is its answer. Nobody else has a say:
/// what others have put in place of lock or socket is taken away, and processes of other users
/// neither call nor are called.
class SingleInstance : public QObject
{
    Q_OBJECT
public:
    /// What a later launch has to say.
    struct Call {
        /// The desktop's permission to come to the front, without line ends; may be empty.
        QByteArray activationToken;
        /// What it wants to see (request.h): one word, or nothing.
        QByteArray request;

        friend bool operator==(const Call &, const Call &) = default;
    };

    /// Tries to be the first. A folder that can't be written to, or that others can write to, keeps
    /// nobody out: then this instance counts as the first, and can't be called.
    explicit SingleInstance(QObject *parent = nullptr);
    /// The same with another folder for lock and socket.
    explicit SingleInstance(const QString &folder, QObject *parent = nullptr);

    [[nodiscard]] bool isFirst() const { return m_first; }

    /// Asks the first instance to come to the front, and waits until it has answered or two seconds
    /// have passed. If it ends meanwhile without an answer, this instance takes its place and
    /// isFirst() from then on, as it is where somebody else answers.
    void callFirst(const Call &call);

Q_SIGNALS:
    /// A later launch asks for this instance.
    void called(const SingleInstance::Call &call);

private:
    enum class Answer { None, Given, OfAStranger };

    [[nodiscard]] bool takeLock();
    void listen();
    void hear(QLocalSocket *caller);
    [[nodiscard]] Answer ask(const QByteArray &line, const QDeadlineTimer &deadline) const;

    QString m_socketPath;
    QLockFile m_lock;
    QLocalServer m_server;
    bool m_first = false;
};
