#include "soak/watch.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <optional>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kBeat = 10;      // ms
constexpr int kStall = 200;    // ms
constexpr int kHang = 60;      // s
constexpr size_t kLeast = 600; // looks at the memory: before ten minutes it still warms up

std::function<void(const QString &)> &storedReport()
{
    static std::function<void(const QString &)> report;
    return report;
}

void takeMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
        return; // Qt ends the process
    }
    if (type == QtWarningMsg || type == QtCriticalMsg)
        storedReport()(text);
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace

Heartbeat::Heartbeat()
    : m_schedule(u"/proc/thread-self/schedstat"_s)
    , m_processors(u"/proc/stat"_s)
{
    static_cast<void>(m_schedule.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    static_cast<void>(m_processors.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &Heartbeat::beat);
    m_inLine = inLine();
    m_worked = worked();
    m_stolen = stolen();
    m_sinceBeat.start();
    m_timer.start(kBeat);
    m_hangWatch = std::thread([this] {
        qint64 seen = -1;
        for (int seconds = 0; !m_ends; ++seconds) {
            if (m_beats != seen) {
                seen = m_beats;
                seconds = 0;
            }
            if (seconds > kHang) {
                std::fputs("The main thread hangs.\n", stderr);
                std::abort();
            }
            std::this_thread::sleep_for(std::chrono::seconds(1));
        }
    });
}

Heartbeat::~Heartbeat()
{
    m_ends = true;
    m_hangWatch.join();
}

void Heartbeat::beat()
{
    ++m_beats;
    const qint64 passed = m_sinceBeat.restart() - kBeat;
    const qint64 waited = inLine() - m_inLine;
    const qint64 working = worked() - m_worked;
    const qint64 lent = stolen() - m_stolen;
    m_inLine += waited;
    m_worked += working;
    m_stolen += lent;
    const qint64 lost = waited + lent;
    const bool isStarved = lost > passed / 4;
    // A thread's work goes on by the clock while its processor is lent.
    const qint64 stall = isStarved ? std::min(working, passed) - lent : passed - lost;
    m_longest = std::max(m_longest, stall);
    if (stall > kStall)
        Q_EMIT stalled(stall, working, waited, lent);
}

// The second figure of the kernel's three, in ns.
qint64 Heartbeat::inLine() const
{
    m_schedule.seek(0);
    return m_schedule.readAll().split(' ').value(1).toLongLong() / 1'000'000;
}

// The eighth figure of all processors together, in ticks: "cpu  …".
qint64 Heartbeat::stolen() const
{
    static const qint64 perSecond = ::sysconf(_SC_CLK_TCK);
    m_processors.seek(0);
    const QByteArray all = m_processors.readLine(200).simplified();
    return all.split(' ').value(8).toLongLong() * 1000 / perSecond;
}

qint64 Heartbeat::worked()
{
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return qint64(time.tv_sec) * 1000 + time.tv_nsec / 1'000'000;
}

MemoryWatch::MemoryWatch()
{
    connect(&m_timer, &QTimer::timeout, this, &MemoryWatch::look);
    m_timer.start(1000);
}

void MemoryWatch::look()
{
    QFile rollup(u"/proc/self/smaps_rollup"_s);
    if (!rollup.open(QIODevice::ReadOnly))
        return;
    for (const QByteArray &line : rollup.readAll().split('\n')) {
        if (line.startsWith("Rss:"))
            m_megabytes.push_back(line.mid(4).chopped(3).trimmed().toDouble() / 1024);
    }
}

std::vector<double> MemoryWatch::medians() const
{
    constexpr size_t quarters = 4;
    std::vector<double> medians;
    const size_t warmUp = m_megabytes.size() / 5;
    const size_t length = (m_megabytes.size() - warmUp) / quarters;
    for (size_t quarter = 0; quarter < quarters && length > 0; ++quarter) {
        const auto begin = m_megabytes.begin() + std::ptrdiff_t(warmUp + quarter * length);
        medians.push_back(median({ begin, begin + std::ptrdiff_t(length) }));
    }
    return medians;
}

std::optional<double> MemoryWatch::growth() const
{
    if (m_megabytes.size() < kLeast)
        return std::nullopt;
    const std::vector<double> quarters = medians();
    return quarters.back() / quarters.front();
}

QString MemoryWatch::summary() const
{
    QStringList texts;
    for (const double megabytes : medians())
        texts.append(QString::number(megabytes, 'f', 0));
    return texts.join(u", "_s) + u" MB"_s;
}

void reportWarnings(const std::function<void(const QString &)> &report)
{
    storedReport() = report;
    qInstallMessageHandler(takeMessage);
}
