// Waiting for what comes by itself.
#pragma once

#include <QCoreApplication>
#include <QTimer>

#include <functional>

/// Waits, with the event loop running, until something holds. False if it doesn't after a minute:
/// whoever hasn't got there by then hangs.
[[nodiscard]] inline bool waitUntil(const std::function<bool()> &holds)
{
    constexpr int patience = 60000; // ms
    constexpr int pause = 10;       // ms
    QTimer pulse;                   // not everything that is waited for is told by an event
    pulse.start(pause);
    QTimer alarm;
    alarm.setSingleShot(true);
    alarm.start(patience);
    while (!holds() && alarm.isActive())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return holds();
}
