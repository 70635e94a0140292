// The program in a network of its own, which holds nothing but this process: whatever it sends is
// counted by the kernel.

#include "shell/launch/halvorinapp.h"

#include "content/contentlibrary.h"
#include "kit/netstatus.h"
#include "screens/videos/private/videostage.h"
#include "shell/appmodel.h"
#include "store/storetesting.h"
#include "support/environment.h"
#include "support/loopback.h"
#include "support/testcourse.h"
#include "support/waituntil.h"

#include <QFile>
#include <QProcess>
#include <QQmlContext>
#include <QQuickItem>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include <sched.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace StoreTesting;

namespace {

// Leaves the machine's network for an empty one, for good.
bool leaveNetwork()
{
    return ::unshare(CLONE_NEWNET) == 0 || ::unshare(CLONE_NEWUSER | CLONE_NEWNET) == 0;
}

// Runs commands of "ip", which sets networks up.
bool configure(const QByteArray &commands)
{
    QProcess ip;
    ip.start(u"ip"_s, { u"-batch"_s, u"-"_s });
    ip.write(commands);
    ip.closeWriteChannel();
    return ip.waitForFinished() && ip.exitStatus() == QProcess::NormalExit && ip.exitCode() == 0;
}

// Gives the empty network a cable whose other end nobody holds, and a way over it to everywhere.
bool connectNetwork()
{
    return configure("link set lo up\n"
                     "link add hv0 type veth peer name hv1\n"
                     "address add 10.213.0.2/24 dev hv0\n"
                     "link set hv0 up\n"
                     "link set hv1 up\n"
                     "route add default via 10.213.0.1\n");
}

void disconnectNetwork()
{
    configure("link delete hv0\n");
}

// What the kernel has counted for this network, such as the "ActiveOpens" of "Tcp".
qint64 counted(const QByteArray &protocol, const QByteArray &what)
{
    QFile file(u"/proc/self/net/snmp"_s);
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    const QByteArrayList lines = file.readAll().split('\n');
    for (qsizetype i = 0; i + 1 < lines.size(); i += 2) {
        if (!lines.at(i).startsWith(QByteArray(protocol + ": ")))
            continue;
        const qsizetype column = lines.at(i).split(' ').indexOf(what);
        return column < 0 ? -1 : lines.at(i + 1).split(' ').value(column).toLongLong();
    }
    return -1;
}

// Connections and packets that have been tried by now, by whatever process of this network.
struct Traffic {
    qint64 connections = counted("Tcp", "ActiveOpens");
    qint64 datagrams = counted("Udp", "OutDatagrams");

    friend bool operator==(const Traffic &, const Traffic &) = default;
};

bool isMapped(const QByteArray &library)
{
    QFile maps(u"/proc/self/maps"_s);
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(library);
}

// The program, for a user who has nothing stored. All tests of a process share one.
class Machine
{
public:
    Machine()
    {
        TestCourse::write(m_home.path(u"course"_s));
        m_app = std::make_unique<HalvorinApp>(m_argc, m_argv);
        waitForFrame([] {});
        qmlContext(m_app->window())->engine()->addImportPath(QStringLiteral(HV_TEST_PLUGINS));
    }

    [[nodiscard]] QQuickWindow &window() const { return *m_app->window(); }

    void waitForFrame(const std::function<void()> &change) const
    {
        bool isDrawn = false;
        const auto frame = QObject::connect(&window(), &QQuickWindow::frameSwapped,
            QCoreApplication::instance(), [&isDrawn] { isDrawn = true; });
        change();
        window().update();
        EXPECT_TRUE(waitUntil([&isDrawn] { return isDrawn; }));
        QObject::disconnect(frame);
    }
    void show(Screen screen) const
    {
        waitForFrame([screen] { AppModel::shared().setScreen(screen); });
    }
    [[nodiscard]] bool shows(const QString &words) const
    {
        return find(*window().contentItem(), [&words](const QQuickItem &item) {
            return item.isVisible() && item.property("text") == words;
        });
    }
    [[nodiscard]] bool hasPlayer() const
    {
        return find(*window().contentItem(), [](const QQuickItem &item) {
            return QByteArray(item.metaObject()->className()).startsWith("LoadedPlayer");
        });
    }

private:
    static bool find(const QQuickItem &root, const std::function<bool(const QQuickItem &)> &fits)
    {
        if (fits(root))
            return true;
        const QList<QQuickItem *> children = root.childItems();
        return std::any_of(children.begin(), children.end(),
            [&fits](const QQuickItem *child) { return find(*child, fits); });
    }

    Folder m_home;
    EnvironmentVariable m_platform{ "QT_QPA_PLATFORM", u"offscreen"_s };
    EnvironmentVariable m_backend{ "QT_QUICK_BACKEND", u"software"_s };
    EnvironmentVariable m_data{ "XDG_DATA_HOME", m_home.path(u"data"_s) };
    EnvironmentVariable m_config{ "XDG_CONFIG_HOME", m_home.path(u"config"_s) };
    EnvironmentVariable m_runtime{ "XDG_RUNTIME_DIR", m_home.path() };
    EnvironmentVariable m_database{ "HV_DB_PATH", std::nullopt };
    EnvironmentVariable m_content{ "HV_CONTENT", m_home.path(u"course"_s) };
    EnvironmentVariable m_sandbox{ "QTWEBENGINE_DISABLE_SANDBOX",
        ::geteuid() == 0 ? std::optional(u"1"_s) : std::nullopt };
    int m_argc = 1;
    char m_name[9] = "halvorin";
    char *m_argv[2] = { m_name, nullptr };
    std::unique_ptr<HalvorinApp> m_app;
};

class Network : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        if (leaveNetwork())
            s_machine = new Machine;
    }
    static void TearDownTestSuite() { delete std::exchange(s_machine, nullptr); }

    void SetUp() override
    {
        if (!s_machine)
            GTEST_SKIP() << "this system lets nobody make a network of their own";
        machine().show(Screen::Home);
        NetStatus::shared().start(); // as the program does after its first frame
        disconnectNetwork();
        ASSERT_TRUE(waitUntil([] { return !isOnline(); }));
    }
    // Plugs the cable in.
    static void goOnline()
    {
        if (!connectNetwork())
            GTEST_SKIP() << "this system has no cables for a network of one's own";
        ASSERT_TRUE(waitUntil([] { return isOnline(); }));
    }
    static Machine &machine() { return *s_machine; }

    static bool isOnline() { return NetStatus::shared().isOnline(); }

private:
    static inline Machine *s_machine = nullptr;
};

} // namespace

TEST_F(Network, WithoutOneTheVideosSaySoAndAskForNothing)
{
    const Traffic before;
    machine().show(Screen::Videos);
    EXPECT_TRUE(machine().shows(u"Needs internet"_s));
    EXPECT_FALSE(machine().hasPlayer());
    EXPECT_EQ(Traffic(), before);
    EXPECT_EQ(before, (Traffic{ .connections = 0, .datagrams = 0 }));
    EXPECT_FALSE(isMapped("WebEngine"));
}

TEST_F(Network, OutsideTheVideosNoConnectionIsEverOpened)
{
    goOnline();
    if (IsSkipped() || HasFatalFailure())
        return;
    const Traffic before;
    for (const ScreenInfo &info : allScreens()) {
        if (info.screen != Screen::Videos)
            machine().show(info.screen);
    }
    machine().waitForFrame([] { AppModel::shared().setGlobalQuery(u"tripod"_s); });
    machine().waitForFrame([] { AppModel::shared().setGlobalQuery({}); });
    machine().waitForFrame([] { AppModel::shared().continueCourse(); });
    EXPECT_EQ(Traffic(), before);
}

TEST_F(Network, TheWebEngineIsLoadedByTheFirstFilmAndByNothingElse)
{
    goOnline();
    if (IsSkipped() || HasFatalFailure())
        return;
    for (const ScreenInfo &info : allScreens()) {
        if (info.screen != Screen::Videos)
            machine().show(info.screen);
    }
    EXPECT_FALSE(isMapped("WebEngine"));
}

// The last, for it loads the web engine.
TEST_F(Network, ThePlayerComesWhenTheNetworkReturns)
{
#ifndef HV_PLAYER
    GTEST_SKIP() << "built without the web engine";
#endif
    Loopback server;
    server.answer(u"/film"_s, "<!doctype html><title>Film</title>");
    VideoStage::setRequests([&server](const Video &) {
        return HVVideo::EmbedRequest{ .url = server.address(u"/film"_s) };
    });
    machine().show(Screen::Videos);
    ASSERT_TRUE(machine().shows(u"Needs internet"_s));

    const Traffic before;
    goOnline();
    if (IsSkipped() || HasFatalFailure())
        return;
    EXPECT_TRUE(waitUntil([] { return machine().hasPlayer(); }));
    EXPECT_FALSE(machine().shows(u"Needs internet"_s));
    EXPECT_TRUE(waitUntil([&server] { return !server.paths().isEmpty(); }));
    EXPECT_EQ(server.paths(), QStringList(u"/film"_s));
    // The counters do count.
    EXPECT_GT(Traffic().connections, before.connections);
    EXPECT_TRUE(isMapped("WebEngine"));

    disconnectNetwork();
    EXPECT_TRUE(waitUntil([] { return !machine().hasPlayer(); }));
    EXPECT_TRUE(machine().shows(u"Needs internet"_s));
    VideoStage::setRequests({});
}
