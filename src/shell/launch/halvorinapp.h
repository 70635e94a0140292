// The program from its first line to its last.
#pragma once

#include <QByteArray>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QStringList>
#include <QThread>

#include <memory>
#include <optional>

class KitWindows;
class SingleInstance;

/// The application. Its construction decides, from the arguments alone and in a fixed order, what
/// this process is for: a mode that serves no user (the self-test and its children, pictures), an
/// answer on standard output ("--help", "--version"), or the camera. Arguments that nobody knows
/// are passed over.
///
/// The camera belongs to one process at a time. A second launch brings the first one's window to
/// the front, hands over what it was asked to show (request.h), and ends, silently and with status
/// 0, before it has touched the user's file.
class HalvorinApp
{
public:
    /// To be called before any Qt object exists, since these read the environment, which has what
    /// is set for them until the first frame; programs that are started later don't inherit it.
    HalvorinApp(int &argc, char **argv);
    ~HalvorinApp();
    Q_DISABLE_COPY_MOVE(HalvorinApp)

    /// Runs until the window is closed, or not at all if the construction has settled everything.
    /// Returns the exit status.
    [[nodiscard]] int run();

    /// The main window; nullptr if this process shows none.
    [[nodiscard]] QQuickWindow *window() const { return m_window.get(); }

private:
    void start(int &argc, char **argv);
    void answer(const QByteArray &activationToken, const QString &request);
    void bringToFront(const QByteArray &activationToken);
    void tidyEnvironment() const;

    std::optional<QByteArray> m_fontResolution; ///< As the user has set it, if at all.
    std::optional<int> m_status;                ///< Set once there is nothing left to do.
    QString m_request;                          ///< What the window is to show when it is there.
    std::unique_ptr<QGuiApplication> m_application;
    std::unique_ptr<SingleInstance> m_instance;
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<KitWindows> m_kitWindows;
    std::unique_ptr<QQuickWindow> m_window;
    std::unique_ptr<QThread> m_indexing; ///< Set with the first frame.
};
