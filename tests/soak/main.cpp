// A monkey at the camera: the program in a real window, driven from a seed for as long as asked.
//
//     monkey MINUTES SEED JOURNAL
//
// Nothing of the user's is read or written, and nothing leaves the machine: the program has a home
// of its own, addresses go nowhere, and there is no player beside it to load. Fails with what was
// seen: a warning, a main thread that didn't answer for more than 200 ms, memory that grew by more
// than a twentieth, a progress file that holds what can't be there. With sanitizers time and memory
// aren't those of the program and only told.

#include "soak/monkey.h"
#include "soak/watch.h"

#include "content/contentlibrary.h"
#include "kit/netstatus.h"
#include "kit/opener.h"
#include "shell/info.h"
#include "shell/launch/halvorinapp.h"
#include "store/sqlitedb.h"
#include "store/userstore.h"

#include <QFile>
#include <QMutex>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <cstdlib>
#include <iostream>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

#ifdef HV_SANITIZED
constexpr bool kIsFast = false;
#else
constexpr bool kIsFast = true;
#endif

constexpr double kMostGrowth = 1.05;

// A Timer and a ListView that reads ahead are animations at rest. Where one begins in the turn of
// the event loop in which another ends, Qt 6.4 stops what drives them twice, and says so. Nothing
// comes of it: each keeps its time. It is no finding, and counted apart.
constexpr auto kStoppedTwice = "QUnifiedTimer::stopAnimationDriver: driver is not running"_L1;

// A home of its own, known to all that asks for one.
class OwnHome
{
public:
    OwnHome()
    {
        const QByteArray path = m_folder.path().toLocal8Bit();
        for (const char *name :
            { "HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR" })
            qputenv(name, path);
        qunsetenv("HV_DB_PATH");
        qputenv("HV_CONTENT", HV_TEST_COURSE);
    }
    [[nodiscard]] QString path() const { return m_folder.path(); }

private:
    const QTemporaryDir m_folder;
};

// What went wrong, each kind of it told once as it comes up.
class Findings
{
public:
    void add(const QString &finding, const QString &during)
    {
        const QMutexLocker lock(&m_mutex);
        ++m_count;
        if (m_told.contains(finding))
            return;
        m_told.append(finding);
        std::cout << qPrintable(finding) << "\n    during: " << qPrintable(during) << std::endl;
    }
    void addWarning(const QString &text, const QString &during)
    {
        if (text != kStoppedTwice)
            return add(u"Warning: "_s + text, during);
        const QMutexLocker lock(&m_mutex);
        ++m_stoppedTwice;
    }
    [[nodiscard]] int count() const { return m_count; }
    [[nodiscard]] int stoppedTwice() const { return m_stoppedTwice; }

private:
    QMutex m_mutex;
    QStringList m_told;
    int m_count = 0;
    int m_stoppedTwice = 0;
};

QString integrity(const QString &path)
{
    return SQLiteDB(path).query(u"PRAGMA integrity_check"_s).constFirst().str(u"integrity_check"_s);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 4) {
        std::cerr << "Usage: monkey MINUTES SEED JOURNAL\n";
        return 2;
    }
    const double minutes = std::atof(argv[1]);
    const auto seed = unsigned(std::atoi(argv[2]));
    Findings findings; // outlives all that may warn
    const OwnHome home;
    QString progress;
    QStringList summary;

    reportWarnings([&](const QString &text) { findings.addWarning(text, u"start"_s); });
    Opener::setAction([](const QUrl &) {});
    {
        int count = 1;
        HalvorinApp app(count, argv);
        NetStatus::setOverride(true);
        progress = HVInfo::databasePath();

        // Without a window manager it never is, and no shortcut works.
        app.window()->requestActivate();
        if (!QTest::qWaitForWindowActive(app.window(), 20'000))
            findings.add(u"The window isn't activated."_s, u"start"_s);

        Monkey monkey(app.window(), seed, home.path(), QString::fromLocal8Bit(argv[3]));
        const Heartbeat heartbeat;
        const MemoryWatch memory;
        const auto during = [&monkey] {
            if (QThread::currentThread() != monkey.thread())
                return u"another thread's work"_s;
            return u"action %1, %2"_s.arg(monkey.actions()).arg(monkey.lastAction());
        };
        reportWarnings([&](const QString &text) { findings.addWarning(text, during()); });
        int stalls = 0;
        const auto tellOfStall = [&](qint64 stall, qint64 working, qint64 inLine, qint64 stolen) {
            ++stalls;
            if (kIsFast)
                findings.add(u"The main thread didn't answer for %1 ms. It worked for %2 ms and "
                             "stood in line for a processor for %3 ms; processors were lent "
                             "to others for %4 ms."_s.arg(stall)
                                 .arg(working)
                                 .arg(inLine)
                                 .arg(stolen),
                    during());
        };
        QObject::connect(&heartbeat, &Heartbeat::stalled, &heartbeat, tellOfStall);

        bool ends = false;
        QTimer::singleShot(int(minutes * 60'000), [&ends] {
            ends = true;
            QCoreApplication::exit();
        });
        int closings = -1;
        while (!ends) {
            app.window()->show(); // again, where the monkey has closed it
            ++closings;
            static_cast<void>(app.run());
        }

        if (UserStore *store = UserStore::shared()) {
            for (const QString &text :
                monkey.typed().objectionsTo(*store, ContentLibrary::shared()))
                findings.add(text, u"the end"_s);
            summary.append(u"%1 notes, %2 bookmarks"_s.arg(store->notes().size())
                               .arg(store->bookmarks().size()));
        }
        const std::optional<double> growth = memory.growth();
        if (kIsFast && growth.value_or(1) > kMostGrowth)
            findings.add(u"The memory has grown: "_s + memory.summary(), u"the run"_s);
        summary.append(u"longest stall %1 ms, %2 above 200"_s.arg(heartbeat.longest()).arg(stalls));
        summary.append(u"memory "_s + memory.summary());
        summary.append(u"%1 actions, %2 times closed"_s.arg(monkey.actions()).arg(closings));
        summary.append(u"%1 times \"%2\""_s.arg(findings.stoppedTwice()).arg(kStoppedTwice));
        reportWarnings([&](const QString &text) { findings.addWarning(text, u"end"_s); });
    }
    const QString verdict = integrity(progress);
    if (verdict != "ok"_L1)
        findings.add(u"The progress file is damaged: "_s + verdict, u"the run"_s);

    std::cout << minutes << " minutes from seed " << seed << ": "
              << qPrintable(summary.join(u"; "_s)) << "; progress file " << qPrintable(verdict)
              << "; " << findings.count() << " findings." << std::endl;
    return findings.count() == 0 ? 0 : 1;
}
