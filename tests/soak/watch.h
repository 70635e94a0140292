// What a long run is watched for: how long its main thread doesn't answer, how its memory grows,
// what Qt warns of.
#pragma once

#include <QElapsedTimer>
#include <QFile>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <atomic>
#include <functional>
#include <optional>
#include <thread>
#include <vector>

/// Looks, from within the event loop, at how late the loop is. A stall is the time between two
/// looks without that which says something about the machine only: in which the thread stood in
/// line for a processor, or a virtual machine's processors were lent to others. Where that was
/// long, it was so for the threads that this one waits for, and nothing but its own work counts.
class Heartbeat : public QObject
{
    Q_OBJECT
public:
    /// A main thread that doesn't answer for a minute hangs: a thread beside it then says so and
    /// ends the process.
    Heartbeat();
    ~Heartbeat() override;

    [[nodiscard]] qint64 longest() const { return m_longest; } ///< ms

Q_SIGNALS:
    /// All in ms.
    void stalled(qint64 stall, qint64 working, qint64 inLine, qint64 stolen);

private:
    void beat();
    [[nodiscard]] qint64 inLine() const;  // ms since the thread began
    [[nodiscard]] static qint64 worked(); // likewise
    [[nodiscard]] qint64 stolen() const;  // ms of all processors since the machine began

    QTimer m_timer;
    QElapsedTimer m_sinceBeat;
    mutable QFile m_schedule;
    mutable QFile m_processors;
    qint64 m_inLine = 0;
    qint64 m_worked = 0;
    qint64 m_stolen = 0;
    qint64 m_longest = 0;
    std::atomic<qint64> m_beats = 0;
    std::atomic<bool> m_ends = false;
    std::thread m_hangWatch;
};

/// The resident memory of the process, once a second.
class MemoryWatch : public QObject
{
    Q_OBJECT
public:
    MemoryWatch();

    /// Growth from the first to the last quarter of what follows the warm-up, the first fifth of
    /// the run: median over median, so 1 if there is none. Nothing of a run of less than ten
    /// minutes.
    [[nodiscard]] std::optional<double> growth() const;
    [[nodiscard]] QString summary() const;

private:
    void look();
    [[nodiscard]] std::vector<double> medians() const; // MB, of the quarters

    QTimer m_timer;
    std::vector<double> m_megabytes;
};

/// Every warning of Qt's, ours and QML's from now on goes to `report`, in whichever thread it comes
/// up; all else that is said is dropped.
void reportWarnings(const std::function<void(const QString &)> &report);
