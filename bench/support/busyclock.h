#pragma once

#include <QAbstractEventDispatcher>
#include <QElapsedTimer>
#include <QObject>

#include <algorithm>

/// Measures the longest stretch of work between two rests of the event loop.
class BusyClock : public QObject
{
public:
    BusyClock()
    {
        QAbstractEventDispatcher *dispatcher = QAbstractEventDispatcher::instance();
        // A loop that finds more to do comes awake again without having rested.
        connect(dispatcher, &QAbstractEventDispatcher::awake, this, [this] {
            if (!m_clock.isValid())
                m_clock.start();
        });
        connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, [this] { note(); });
    }
    void begin() { m_clock.start(); }
    [[nodiscard]] double longest() const { return m_longest; }

private:
    void note()
    {
        if (m_clock.isValid())
            m_longest = std::max(m_longest, double(m_clock.nsecsElapsed()) * 1e-6);
        m_clock.invalidate();
    }

    QElapsedTimer m_clock;
    double m_longest = 0;
};
