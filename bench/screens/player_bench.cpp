// What a user waits for who chooses a film: the first of a run, which loads the web engine, and any
// later one.
//
// Budget: from the click to the frame that shows the player's page, 500 ms, on a page of this
// machine. 1440 × 948 window, offscreen, software scene graph. `page_MB` is what the page's process
// holds, which goes back to the system when the screen is left.

#include "support/realwindow.h"

#include "content/contentlibrary.h"
#include "kit/netstatus.h"
#include "screens/videos/private/videostage.h"
#include "shell/appmodel.h"
#include "shell/launch/halvorinapp.h"

#include <benchmark/benchmark.h>

#include <QElapsedTimer>
#include <QFile>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QTcpServer>
#include <QTcpSocket>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

HalvorinApp *g_app = nullptr;

// Says by its title when it has been drawn.
constexpr auto kPage
    = "<!doctype html><body style='background:#204080'><script>requestAnimationFrame(() => "
      "requestAnimationFrame(() => document.title = 'drawn'))</script></body>";

class Service
{
public:
    Service()
    {
        QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] {
            QTcpSocket *socket = m_server.nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [socket] {
                socket->readAll();
                const QByteArray page = kPage;
                socket->write("HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nConnection: close\r\n"
                              "Content-Length: "
                    + QByteArray::number(page.size()) + "\r\n\r\n" + page);
                socket->disconnectFromHost();
            });
        });
        if (!m_server.listen(QHostAddress::LocalHost))
            qFatal("There is no loopback to listen on.");
        VideoStage::setRequests([this](const Video &video) {
            return HVVideo::EmbedRequest{ .url
                = QUrl(u"http://127.0.0.1:%1/%2"_s.arg(m_server.serverPort()).arg(video.id)) };
        });
    }

private:
    QTcpServer m_server;
};

QQuickItem *viewBelow(QQuickItem *root)
{
    if (QByteArray(root->metaObject()->className()).startsWith("QQuickWebEngineView"))
        return root;
    for (QQuickItem *child : root->childItems()) {
        if (QQuickItem *found = viewBelow(child))
            return found;
    }
    return nullptr;
}

QQuickItem *view()
{
    return viewBelow(g_app->window()->contentItem());
}

// What a process holds of the memory, in MB.
double residentMB(qint64 process)
{
    QFile file(u"/proc/%1/statm"_s.arg(process));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return double(file.readAll().split(' ').value(1).toLongLong()) * double(::sysconf(_SC_PAGESIZE))
        / 1e6;
}

// Seconds from what brings a player up to a frame that has its drawn page.
template <typename Change>
double secondsToPlayer(const Change &change)
{
    QEventLoop loop;
    QElapsedTimer clock;
    const auto frame
        = QObject::connect(g_app->window(), &QQuickWindow::frameSwapped, &loop, [&loop] {
              if (view() && view()->property("title") == u"drawn"_s)
                  loop.quit();
          });
    QTimer pulse; // a page that changes its title needn't draw again
    QObject::connect(&pulse, &QTimer::timeout, g_app->window(), &QQuickWindow::update);
    pulse.start(5);
    clock.start();
    change();
    loop.exec();
    QObject::disconnect(frame);
    return double(clock.nsecsElapsed()) * 1e-9;
}

void openLibrary(bool online)
{
    AppModel::shared().setScreen(Screen::Home);
    AppModel::shared().setVideoID({});
    NetStatus::setOverride(online);
    AppModel::shared().setScreen(Screen::Videos);
    settle();
}

// One of a process: the engine stays loaded.
void BM_FirstFilm(benchmark::State &state)
{
    openLibrary(false);
    const double before = residentMB(::getpid());
    // Nothing is loaded before; the network's return brings the player up as a click does.
    for (auto _ : state)
        state.SetIterationTime(secondsToPlayer([] { NetStatus::setOverride(true); }));
    settle();
    state.counters["page_MB"] = residentMB(view()->property("renderProcessPid").toLongLong());
    state.counters["program_MB"] = residentMB(::getpid()) - before;
}
BENCHMARK(BM_FirstFilm)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1);

void BM_NextFilm(benchmark::State &state)
{
    openLibrary(true);
    const QList<Video> &videos = ContentLibrary::shared().videos();
    double longest = 0;
    qsizetype next = 0;
    for (auto _ : state) {
        const QString id = videos.at(++next % videos.size()).id;
        const double seconds = secondsToPlayer([&id] { AppModel::shared().setVideoID(id); });
        state.SetIterationTime(seconds);
        longest = std::max(longest, seconds * 1e3);
        settle();
    }
    state.counters["longest_ms"] = longest;
}
BENCHMARK(BM_NextFilm)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(20);

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    const BenchHome home;
    // Or the engine would refuse to start.
    if (::geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");

    HalvorinApp app(argc, argv);
    g_app = &app;
    settle();
    qmlContext(app.window())->engine()->addImportPath(QStringLiteral(HV_BENCH_PLUGINS));
    const Service service;
    benchmark::RunSpecifiedBenchmarks();
}
