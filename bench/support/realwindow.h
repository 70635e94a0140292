// What the benchmarks have in common that drive the real window.
#pragma once

#include "support/fullcourse.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTimer>

/// A home of its own with a full course, for as long as this exists: nothing of the user's is
/// read or written. To be made before the program; without a display that is offscreen.
class BenchHome
{
public:
    /// With the content of that many courses.
    explicit BenchHome(int courses = 1)
        : m_course(courses)
    {
        qputenv("HV_CONTENT", m_course.path().toLocal8Bit());
        for (const char *name : { "HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR" })
            qputenv(name, m_home.path().toLocal8Bit());
        if (!qEnvironmentVariableIsSet("DISPLAY"))
            qputenv("QT_QPA_PLATFORM", HV_OFFSCREEN);
    }

    [[nodiscard]] QString path() const { return m_home.path(); }
    [[nodiscard]] QString coursePath() const { return m_course.path(); }

private:
    const QTemporaryDir m_home;
    const FullCourse m_course;
};

/// Lets the event loop run for so long.
inline void rest(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Lets everything that is still under way come to rest: animations, delayed calls.
inline void settle()
{
    rest(350);
}

/// From `change` to the end of the window's next frame.
template <typename Change>
double secondsToFrame(QQuickWindow *window, const Change &change)
{
    QEventLoop loop;
    const auto frame
        = QObject::connect(window, &QQuickWindow::frameSwapped, &loop, &QEventLoop::quit);
    QElapsedTimer clock;
    clock.start();
    change();
    loop.exec();
    QObject::disconnect(frame);
    return double(clock.nsecsElapsed()) * 1e-9;
}
