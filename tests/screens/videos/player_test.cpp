// The library's screen with the real player in it, and a web server on this machine in the place of
// the service.

#include "content/contentlibrary.h"
#include "kit/netstatus.h"
#include "kit/opener.h"
#include "kit/printing.h"
#include "screens/coursetesting.h"
#include "screens/videos/private/videostage.h"
#include "shell/appmodel.h"
#include "shell/setup.h"
#include "support/environment.h"
#include "support/loopback.h"
#include "support/waituntil.h"

#include <QDirIterator>
#include <QFile>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <gtest/gtest.h>

#include <csignal>
#include <functional>
#include <memory>

#include <unistd.h>

using namespace Qt::StringLiterals;
using CourseTesting::Course;
using CourseTesting::World;

namespace {

QQuickItem *find(QQuickItem *root, const std::function<bool(const QQuickItem &)> &fits)
{
    if (fits(*root))
        return root;
    for (QQuickItem *child : root->childItems()) {
        if (QQuickItem *found = find(child, fits))
            return found;
    }
    return nullptr;
}

bool isOfType(const QObject &object, const char *name)
{
    for (const QMetaObject *type = object.metaObject(); type; type = type->superClass()) {
        if (QByteArray(type->className()).startsWith(name))
            return true;
    }
    return false;
}

bool isRunning(qint64 process)
{
    QFile status(u"/proc/%1/stat"_s.arg(process));
    // Who has ended but wasn't asked for it yet is a zombie.
    return status.open(QIODevice::ReadOnly) && !status.readAll().contains(") Z ");
}

class Player : public testing::Test
{
protected:
    Player()
    {
        if (::geteuid() == 0)
            qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
        NetStatus::setOverride(true);
        Opener::setAction([this](const QUrl &address) { opened.append(address.toString()); });
        VideoStage::setRequests([this](const Video &video) {
            return HVVideo::EmbedRequest{
                .url = refusing ? QUrl(u"http://127.0.0.1:1/"_s)
                                : server.address(u"/embed/"_s + video.id + u"?rel=0"_s),
                .headers = { { "Referer", "http://maker.example/" } },
                .timeout = timeout,
            };
        });
        HVSetup::configure();
        engine.addImportPath(u":/qt/qml"_s);
        engine.addImportPath(QStringLiteral(HV_TEST_PLUGINS));
        server.answer(path(first), kGood);
        server.answer(path(second), kGood);
    }
    ~Player() override
    {
        leave();
        VideoStage::setRequests({});
        Opener::setAction({});
        NetStatus::setOverride({});
    }

    static QString path(const QString &id) { return u"/embed/"_s + id; }

    // Opens the screen on a film.
    void show(const QString &id)
    {
        model.setVideoID(id);
        QQmlComponent component(&engine);
        component.setData("import Halvorin.Camera\n"
                          "import Halvorin.Screens\n"
                          "VideoLibraryView { c: CameraPalette.current; focus: true }",
            QUrl());
        screen.reset(qobject_cast<QQuickItem *>(component.create()));
        ASSERT_TRUE(screen) << component.errorString().toStdString();
        window.resize(1100, 760);
        screen->setSize(window.size());
        screen->setParentItem(window.contentItem());
        window.show();
    }
    // Opens it on a film whose page is there, and which is looked into at once.
    void showLoaded(const QString &id)
    {
        show(id);
        ASSERT_TRUE(player());
        player()->setProperty("probeDelay", 0);
        ASSERT_TRUE(waitUntil([this] { return isLoaded() || isFailed(); }));
    }
    void leave() { screen.reset(); }

    [[nodiscard]] QQuickItem *find(const char *type)
    {
        const auto fits = [type](const QQuickItem &item) { return isOfType(item, type); };
        return screen ? ::find(window.contentItem(), fits) : nullptr;
    }
    [[nodiscard]] QQuickItem *player() { return find("YouTubePlayerView"); }
    [[nodiscard]] QQuickItem *view() { return find("QQuickWebEngineView"); }
    [[nodiscard]] bool isFailed()
    {
        return ::find(window.contentItem(), [](const QQuickItem &item) {
            return item.isVisible()
                && item.property("text") == u"The player couldn't load this video here."_s;
        });
    }
    [[nodiscard]] bool isLoaded()
    {
        return view() && !view()->property("loading").toBool()
            && view()->property("loadProgress") == 100;
    }
    // Opens it on a page that can be clicked: one that hasn't been drawn yet hears no mouse.
    void showDrawn(const QByteArray &body)
    {
        server.answer(path(first),
            "<!doctype html><title>Film</title><body style='margin:0' "
            "onload='requestAnimationFrame(() => requestAnimationFrame(() => document.title = "
            "\"drawn\"))'>"
                + body + "</body>");
        showLoaded(first);
        ASSERT_TRUE(waitUntil([this] { return title() == u"drawn"; }));
    }
    // Runs in the page, which tells by its title what has come of it.
    void run(const QString &script)
    {
        QMetaObject::invokeMethod(view(), "runJavaScript", Q_ARG(QString, script));
    }
    [[nodiscard]] QString title()
    {
        return view() ? view()->property("title").toString() : QString();
    }
    [[nodiscard]] qint64 renderer() { return view()->property("renderProcessPid").toLongLong(); }
    void click(QPoint place)
    {
        const QPointF inWindow = view()->mapToScene(QPointF(place));
        QTest::mouseClick(&window, Qt::LeftButton, {}, inWindow.toPoint());
    }

    static constexpr auto kGood = "<!doctype html><title>Film</title>"
                                  "<body style='background:#204080'>A film</body>";
    // Tells by its title that somebody has looked for the box.
    static constexpr auto kWatched
        = "<script>const look = document.querySelector.bind(document);"
          "document.querySelector = what => { document.title = 'probed'; return look(what); };"
          "</script>";
    const QString first = u"abcdefghijk"_s;
    const QString second = u"shutters_01"_s;

    World world{ Course::Films };
    AppModel &model = AppModel::shared();
    Loopback server;
    bool refusing = false;
    std::chrono::milliseconds timeout = std::chrono::seconds(60);
    QStringList opened;
    QQmlEngine engine;
    QQuickWindow window;
    std::unique_ptr<QQuickItem> screen;
};

} // namespace

TEST_F(Player, AsksForTheFilmOnBehalfOfTheMakersSiteAndForNothingElse)
{
    server.answer(path(first), kWatched + QByteArray(kGood));
    showLoaded(first);
    ASSERT_TRUE(waitUntil([this] { return title() == u"probed"; }));
    EXPECT_FALSE(isFailed());
    EXPECT_EQ(server.paths(), QStringList(u"/embed/abcdefghijk?rel=0"_s));
    EXPECT_EQ(server.requests().first().headers.value("referer"), "http://maker.example/");
    EXPECT_EQ(opened, QStringList());
}

TEST_F(Player, LooksIntoThePageThreeSecondsAfterItHasCome)
{
    show(first);
    ASSERT_TRUE(player());
    EXPECT_EQ(player()->property("probeDelay"), 3000);
}

TEST_F(Player, ShowsThePage)
{
    showLoaded(first);
    const QPoint middle = view()->mapToScene(QPointF(300, 150)).toPoint();
    EXPECT_TRUE(waitUntil(
        [&] { return window.grabWindow().pixelColor(middle) == QColor(0x20, 0x40, 0x80); }));
}

TEST_F(Player, ABoxThatCanBeSeenIsAFailureAndThePlayerGoes)
{
    server.answer(path(first), "<!doctype html><div class='ytp-error'>Video unavailable</div>");
    showLoaded(first);
    EXPECT_TRUE(waitUntil([this] { return isFailed(); }));
    EXPECT_TRUE(waitUntil([this] { return !view(); }));
}

TEST_F(Player, ABoxThatIsHiddenIsNoFailure)
{
    server.answer(path(first),
        kWatched
            + QByteArray("<!doctype html><div class='ytp-error' style='display:none'>Video "
                         "unavailable</div>"));
    showLoaded(first);
    ASSERT_TRUE(waitUntil([this] { return title() == u"probed"; }));
    // What the look has found arrives before what is asked for later.
    run(u"document.title = 'later'"_s);
    ASSERT_TRUE(waitUntil([this] { return title() == u"later"; }));
    EXPECT_FALSE(isFailed());
}

TEST_F(Player, APageThatTheServiceDoesNotHaveIsAFailure)
{
    server.answer(path(first), "<!doctype html>Gone", "404 Not Found");
    show(first);
    EXPECT_TRUE(waitUntil([this] { return isFailed(); }));
    EXPECT_FALSE(view());
}

TEST_F(Player, AConnectionThatIsRefusedIsAFailure)
{
    refusing = true;
    show(first);
    EXPECT_TRUE(waitUntil([this] { return isFailed(); }));
    EXPECT_EQ(server.paths(), QStringList());
}

TEST_F(Player, AServiceThatNeverAnswersIsAFailure)
{
    server.keepWaiting(path(first));
    timeout = std::chrono::milliseconds(300);
    show(first);
    EXPECT_TRUE(waitUntil([this] { return isFailed(); }));
}

TEST_F(Player, WindowsLeadOut)
{
    server.answer(path(first),
        "<!doctype html><script>window.open('http://elsewhere.example/page')</script>");
    showLoaded(first);
    EXPECT_TRUE(waitUntil([this] { return !opened.isEmpty(); }));
    EXPECT_EQ(opened, QStringList(u"http://elsewhere.example/page"_s));
    EXPECT_EQ(server.paths().size(), 1);
    EXPECT_FALSE(isFailed());
}

TEST_F(Player, LinksLeadOutAndThePageStays)
{
    showDrawn("<a href='/elsewhere' style='display:block;height:200px'>Go</a>");
    click({ 100, 100 });
    ASSERT_TRUE(waitUntil([this] { return !opened.isEmpty(); }));
    EXPECT_EQ(opened, QStringList(server.address(u"/elsewhere"_s).toString()));
    EXPECT_EQ(server.paths().size(), 1);
    EXPECT_EQ(view()->property("url").toUrl().path(), path(first));
    EXPECT_FALSE(isFailed());
}

TEST_F(Player, LinksForANewWindowLeadOutOnce)
{
    showDrawn("<a href='/elsewhere' target='_blank' style='display:block;height:200px'>Go</a>");
    click({ 100, 100 });
    ASSERT_TRUE(waitUntil([this] { return !opened.isEmpty(); }));
    EXPECT_EQ(opened, QStringList(server.address(u"/elsewhere"_s).toString()));
    EXPECT_EQ(server.paths().size(), 1);
}

TEST_F(Player, InnerFramesFollowTheirLinks)
{
    server.answer(u"/inner"_s, "<!doctype html><a href='/innermost'>Go</a>");
    server.answer(u"/innermost"_s, "<!doctype html>There");
    server.answer(path(first), "<!doctype html><iframe src='/inner'></iframe>");
    showLoaded(first);
    run(u"frames[0].document.querySelector('a').click()"_s);
    EXPECT_TRUE(waitUntil([this] { return server.paths().contains(u"/innermost"_s); }));
    EXPECT_EQ(opened, QStringList());
    // Where the page goes by itself, it is the page that says where it comes from.
    for (const Loopback::Request &request : server.requests().sliced(1))
        EXPECT_NE(request.headers.value("referer"), "http://maker.example/");
}

TEST_F(Player, ARendererThatIsKilledIsAFailure)
{
    showLoaded(first);
    const qint64 process = renderer();
    ASSERT_GT(process, 0);
    ASSERT_EQ(::kill(pid_t(process), SIGKILL), 0);
    EXPECT_TRUE(waitUntil([this] { return isFailed(); }));
}

TEST_F(Player, AnotherFilmBeforeTheLookIsNotTakenForTheFirst)
{
    server.answer(path(first), "<!doctype html><div class='ytp-error'>Video unavailable</div>");
    server.answer(path(second), kWatched + QByteArray(kGood));
    show(first);
    ASSERT_TRUE(player());
    player()->setProperty("probeDelay", 30000);
    ASSERT_TRUE(waitUntil([this] { return isLoaded(); }));
    model.setVideoID(second);
    ASSERT_TRUE(player());
    player()->setProperty("probeDelay", 0);
    ASSERT_TRUE(waitUntil([this] { return title() == u"probed"; }));
    run(u"document.title = 'later'"_s);
    ASSERT_TRUE(waitUntil([this] { return title() == u"later"; }));
    EXPECT_FALSE(isFailed());
    EXPECT_EQ(server.paths(),
        QStringList({ u"/embed/abcdefghijk?rel=0"_s, u"/embed/shutters_01?rel=0"_s }));
}

TEST_F(Player, CookiesGoWithTheFilm)
{
    server.answer(path(first), kGood, "200 OK", "Set-Cookie: seen=1; Max-Age=99999; Path=/\r\n");
    showLoaded(first);
    model.setVideoID(second);
    ASSERT_TRUE(waitUntil([this] { return server.paths().size() == 2; }));
    model.setVideoID(first);
    ASSERT_TRUE(waitUntil([this] { return server.paths().size() == 3; }));
    for (const Loopback::Request &request : server.requests())
        EXPECT_FALSE(request.headers.contains("cookie"));
}

TEST_F(Player, NothingIsDownloaded)
{
    server.answer(u"/film.bin"_s, QByteArray(1000, 'x'));
    showDrawn("<a href='/film.bin' download='film.bin' style='display:block;height:200px'>Go</a>");
    click({ 100, 100 });
    run(u"document.title = 'later'"_s);
    ASSERT_TRUE(waitUntil([this] { return title() == u"later"; }));
    QDirIterator downloads(
        qEnvironmentVariable("HOME"), { u"film*"_s }, QDir::Files, QDirIterator::Subdirectories);
    EXPECT_FALSE(downloads.hasNext());
    EXPECT_FALSE(isFailed());
}

TEST_F(Player, NothingPlaysUntilSomebodyPresses)
{
    // A second of silence, 8 bits at 8 kHz.
    const QByteArray sound = QByteArray::fromHex("52494646641f000057415645666d74201000000001000100"
                                                 "401f0000401f00000100080064617461401f0000")
        + QByteArray(8000, '\x80');
    server.answer(path(first),
        "<!doctype html><script>"
        "new Audio('data:audio/wav;base64,"
            + sound.toBase64()
            + "').play().then(() => document.title = 'plays', e => document.title = e.name);"
              "</script>");
    showLoaded(first);
    EXPECT_TRUE(waitUntil([this] { return title() == u"NotAllowedError"; }))
        << title().toStdString();
}

TEST_F(Player, FillsTheScreenAndComesBackByEscape)
{
    showDrawn("<button style='width:300px;height:200px' "
              "onclick='document.documentElement.requestFullscreen()'>Full</button>");
    QQuickItem *const home = view()->parentItem();
    click({ 100, 100 });
    ASSERT_TRUE(waitUntil([this] { return window.visibility() == QWindow::FullScreen; }));
    EXPECT_EQ(view()->parentItem(), window.contentItem());
    EXPECT_TRUE(waitUntil([this] { return view()->size() == QSizeF(window.size()); }));

    QTest::keyClick(&window, Qt::Key_Escape);
    ASSERT_TRUE(waitUntil([this] { return window.visibility() != QWindow::FullScreen; }));
    EXPECT_EQ(view()->parentItem(), home);
    EXPECT_TRUE(waitUntil([&] { return view()->size() == home->size(); }));
}

TEST_F(Player, LeavingTheScreenInFullScreenGivesTheWindowBack)
{
    showDrawn("<button style='width:300px;height:200px' "
              "onclick='document.documentElement.requestFullscreen()'>Full</button>");
    click({ 100, 100 });
    ASSERT_TRUE(waitUntil([this] { return window.visibility() == QWindow::FullScreen; }));
    leave();
    EXPECT_TRUE(waitUntil([this] { return window.visibility() != QWindow::FullScreen; }));
}

TEST_F(Player, TheProcessOfThePageEndsWithTheScreen)
{
    showLoaded(first);
    const qint64 process = renderer();
    ASSERT_TRUE(isRunning(process));
    leave();
    EXPECT_TRUE(waitUntil([process] { return !isRunning(process); }));
}

TEST_F(Player, WithoutANetworkNothingIsAskedFor)
{
    NetStatus::setOverride(false);
    show(first);
    EXPECT_FALSE(player());
    EXPECT_FALSE(isFailed());
    EXPECT_EQ(server.paths(), QStringList());
    NetStatus::setOverride(true);
    EXPECT_TRUE(waitUntil([this] { return server.paths().size() == 1; }));
}

TEST_F(Player, TheListKeepsTheKeyboardWhileAPageComes)
{
    showLoaded(first);
    EXPECT_FALSE(view()->hasActiveFocus());
}
