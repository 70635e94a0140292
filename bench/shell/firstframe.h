#pragma once

#include <QCoreApplication>
#include <QFile>
#include <QQuickWindow>

#include <cstdio>

/// Runs the event loop until the window has shown its first frame; then prints the resident memory
/// of the process in pages, and ends at once.
inline int runUntilFirstFrame(QQuickWindow *window)
{
    QObject::connect(
        window, &QQuickWindow::frameSwapped, window,
        [] {
            QFile statm(QStringLiteral("/proc/self/statm"));
            const QList<QByteArray> fields = statm.open(QIODevice::ReadOnly)
                ? statm.readAll().split(' ')
                : QList<QByteArray>();
            std::printf("%s\n", fields.value(1, "0").constData());
            std::fflush(stdout);
            QCoreApplication::quit();
        },
        Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
    return QCoreApplication::exec();
}
