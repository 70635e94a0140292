// The program itself as a process of its own, in surroundings that leave the tests' user alone.
#pragma once

#include "store/storetesting.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

/// A home folder as the program sees it: a user without settings or progress, on a machine without
/// a display. Gone with the object.
class Home
{
public:
    Home();

    /// What a run gets; a test may change it.
    QProcessEnvironment environment;

    /// A place in the home folder, absolute.
    [[nodiscard]] QString path(const QString &name = {}) const { return m_folder.path(name); }

    [[nodiscard]] QString dataFolder() const { return path(QStringLiteral("data/CRVN Halvorin")); }
    [[nodiscard]] QString progressFile() const;
    [[nodiscard]] QString preferencesFile() const;
    [[nodiscard]] QString temporaryFolder() const { return path(QStringLiteral("tmp")); }
    [[nodiscard]] QString courseFolder() const { return path(QStringLiteral("course")); }

    /// The socket on which a running program is called.
    [[nodiscard]] QString socket() const;

    /// The fingerprint of every file and folder below the home folder.
    [[nodiscard]] StoreTesting::Fingerprint fingerprint() const;

private:
    StoreTesting::Folder m_folder;
};

/// One run of the program. Ended with the object, whatever it is doing.
class Program
{
public:
    /// What is to hold in the process before the program's first line, such as a limit.
    using Preparation = std::function<void()>;

    explicit Program(
        const Home &home, const QStringList &arguments = {}, const Preparation &preparation = {});
    ~Program();
    Q_DISABLE_COPY_MOVE(Program)

    /// Waits until it has done everything that a launch does and its event loop answers calls.
    /// False if it ends before, or doesn't get there.
    [[nodiscard]] bool waitUntilItAnswers();

    /// Waits for its end and returns the exit status; nothing if it was killed, crashed or hangs.
    [[nodiscard]] std::optional<int> status();

    [[nodiscard]] bool isRunning();

    /// Whether it has seen to it by now that this signal doesn't simply end it.
    [[nodiscard]] bool handles(int signal) const;
    void send(int signal);

    /// All that it has printed, once it has ended.
    [[nodiscard]] QString output();
    [[nodiscard]] QString complaints();

private:
    [[nodiscard]] bool hasProgressFileOpen() const;

    QString m_socket;
    QString m_temporaryFolder;
    QProcess m_process;
};
