// The application inside this process, where its window can be looked at.

#include "shell/launch/halvorinapp.h"

#include "shell/appmodel.h"
#include "shell/launch/singleinstance.h"
#include "store/storetesting.h"
#include "support/environment.h"
#include "support/testcourse.h"
#include "support/waituntil.h"

#include <QScreen>
#include <QTimer>

#include <gtest/gtest.h>

#include <future>
#include <memory>

using namespace Qt::StringLiterals;
using namespace StoreTesting;

namespace {

// The application on an offscreen display, for a user who has nothing stored. All tests share one,
// for QML doesn't survive the application object of its process.
class Machine
{
public:
    Machine()
    {
        TestCourse::write(m_home.path(u"course"_s));
        m_app = std::make_unique<HalvorinApp>(m_argc, m_argv);
        m_firstScreen = AppModel::shared().screen();
    }

    /// What the window showed when it was new.
    [[nodiscard]] Screen firstScreen() const { return m_firstScreen; }

    [[nodiscard]] HalvorinApp &app() const { return *m_app; }

    // What the process of a later launch does; the token is the desktop's permission to it. It
    // waits for the answer of this thread's event loop, so it has a thread of its own.
    [[nodiscard]] std::future<void> launchAgain(const SingleInstance::Call &call = {}) const
    {
        return std::async(std::launch::async, [folder = m_home.path(), call] {
            SingleInstance later(folder);
            ASSERT_FALSE(later.isFirst());
            later.callFirst(call);
        });
    }

private:
    Folder m_home;
    EnvironmentVariable m_platform{ "QT_QPA_PLATFORM", u"offscreen"_s };
    EnvironmentVariable m_backend{ "QT_QUICK_BACKEND", u"software"_s };
    EnvironmentVariable m_data{ "XDG_DATA_HOME", m_home.path(u"data"_s) };
    EnvironmentVariable m_config{ "XDG_CONFIG_HOME", m_home.path(u"config"_s) };
    EnvironmentVariable m_runtime{ "XDG_RUNTIME_DIR", m_home.path() };
    EnvironmentVariable m_database{ "HV_DB_PATH", std::nullopt };
    EnvironmentVariable m_token{ "XDG_ACTIVATION_TOKEN", u"token-of-the-launch"_s };
    EnvironmentVariable m_fontResolution{ "QT_FONT_DPI", u"120"_s };
    EnvironmentVariable m_content{ "HV_CONTENT", m_home.path(u"course"_s) };
    int m_argc = 3;
    char m_name[9] = "halvorin";
    char m_option[9] = "--screen";
    char m_screen[5] = "lens";
    char *m_argv[4] = { m_name, m_option, m_screen, nullptr };
    std::unique_ptr<HalvorinApp> m_app;
    Screen m_firstScreen = Screen::Home;
};

class HalvorinAppTest : public ::testing::Test
{
protected:
    static void SetUpTestSuite() { machine = std::make_unique<Machine>(); }
    static void TearDownTestSuite() { machine.reset(); }

    void SetUp() override { window().showNormal(); }

    [[nodiscard]] static QQuickWindow &window() { return *machine->app().window(); }

    // Gives another window the user's attention.
    void lookElsewhere()
    {
        another.show();
        another.requestActivate();
        ASSERT_TRUE(waitUntil([this] { return another.isActive(); }));
    }

    static inline std::unique_ptr<Machine> machine;
    QWindow another;
};

} // namespace

TEST_F(HalvorinAppTest, ShowsOneWindowUnderTheProgramsName)
{
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(window().title(), u"CRVN Halvorin"_s);
    // One that is set is written behind the title of every other window.
    EXPECT_EQ(QGuiApplication::applicationDisplayName(), QCoreApplication::applicationName());
    EXPECT_EQ(QCoreApplication::applicationName(), u"CRVN Halvorin"_s);
}

TEST_F(HalvorinAppTest, ShowsTheScreenThatTheLaunchAskedFor)
{
    EXPECT_EQ(machine->firstScreen(), Screen::Lens);
}

TEST_F(HalvorinAppTest, CountsADesignPointAsAPixelOfTheDesktop)
{
    EXPECT_EQ(QGuiApplication::primaryScreen()->logicalDotsPerInch(), 72);
}

TEST_F(HalvorinAppTest, LeavesTheEnvironmentToProgramsThatItStartsAsItsUserHasSetIt)
{
    EXPECT_TRUE(waitUntil([] { return qgetenv("QT_FONT_DPI") == "120"; }));
    EXPECT_FALSE(qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
}

TEST_F(HalvorinAppTest, LoadsNoGLForAWindowThatIsDrawnWithoutIt)
{
    EXPECT_FALSE(QCoreApplication::testAttribute(Qt::AA_ShareOpenGLContexts));
}

TEST_F(HalvorinAppTest, EndsWhenItsOnlyWindowIsClosed)
{
    QTimer::singleShot(0, &window(), &QWindow::close);
    EXPECT_EQ(machine->app().run(), 0);
}

TEST_F(HalvorinAppTest, ALaterLaunchBringsTheWindowToTheFront)
{
    lookElsewhere();
    const std::future<void> later = machine->launchAgain();
    EXPECT_TRUE(waitUntil([] { return window().isActive(); }));
}

TEST_F(HalvorinAppTest, ALaterLaunchHandsItsPermissionToTheWindow)
{
    // given a window that has been drawn, so that the platform has nothing more to say of its state
    ASSERT_TRUE(waitUntil([] { return !qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"); }));
    window().showMinimized();
    // This is where a platform looks for it when a window asks for the user's attention.
    QByteArray token;
    const auto lookForIt = QObject::connect(&window(), &QWindow::windowStateChanged, [&token] {
        // The state may be told once more when the platform has followed.
        if (token.isEmpty())
            token = qgetenv("XDG_ACTIVATION_TOKEN");
    });
    // when
    const std::future<void> later
        = machine->launchAgain({ .activationToken = "token-of-the-desktop" });
    EXPECT_TRUE(waitUntil([] { return window().windowState() == Qt::WindowNoState; }));
    QObject::disconnect(lookForIt);
    // then
    EXPECT_EQ(token, "token-of-the-desktop");
    EXPECT_FALSE(qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
}

TEST_F(HalvorinAppTest, ALaterLaunchShowsAMinimizedWindow)
{
    window().showMinimized();
    const std::future<void> later = machine->launchAgain();
    EXPECT_TRUE(waitUntil([] { return window().windowState() == Qt::WindowNoState; }));
    EXPECT_TRUE(window().isVisible());
}

TEST_F(HalvorinAppTest, ALaterLaunchShowsAMinimizedWindowAsLargeAsItWas)
{
    window().setWindowStates(Qt::WindowMinimized | Qt::WindowMaximized);
    const std::future<void> later = machine->launchAgain();
    EXPECT_TRUE(waitUntil([] { return !window().windowStates().testFlag(Qt::WindowMinimized); }));
    EXPECT_EQ(window().windowStates(), Qt::WindowMaximized);
}

TEST_F(HalvorinAppTest, ALaterLaunchKeepsAMaximizedWindowMaximized)
{
    window().showMaximized();
    lookElsewhere();
    const std::future<void> later = machine->launchAgain();
    EXPECT_TRUE(waitUntil([] { return window().isActive(); }));
    EXPECT_EQ(window().windowStates(), Qt::WindowMaximized);
}

TEST_F(HalvorinAppTest, ALaterLaunchLeavesAWindowOnTheFullScreen)
{
    window().showFullScreen();
    lookElsewhere();
    const std::future<void> later = machine->launchAgain();
    EXPECT_TRUE(waitUntil([] { return window().isActive(); }));
    EXPECT_EQ(window().windowStates(), Qt::WindowFullScreen);
}

TEST_F(HalvorinAppTest, ALaterLaunchComesToTheFrontWithTheScreenThatItAsksFor)
{
    // given search results that would cover it
    AppModel::shared().setScreen(Screen::Notes);
    AppModel::shared().setGlobalQuery(u"lens"_s);
    lookElsewhere();
    // when
    const std::future<void> later = machine->launchAgain({ .request = "exposure" });
    // then
    EXPECT_TRUE(waitUntil([] { return window().isActive(); }));
    EXPECT_EQ(AppModel::shared().screen(), Screen::Exposure);
    EXPECT_FALSE(AppModel::shared().showsResults());
}

TEST_F(HalvorinAppTest, ALaterLaunchGoesOnWithTheCourse)
{
    // given the first lesson of three finished
    AppModel::shared().setScreen(Screen::Home);
    UserStore::shared()->setComplete(u"a1-l1"_s, true);
    lookElsewhere();
    // when
    const std::future<void> later = machine->launchAgain({ .request = "continue" });
    // then
    EXPECT_TRUE(waitUntil([] { return window().isActive(); }));
    EXPECT_EQ(AppModel::shared().screen(), Screen::Course);
    EXPECT_EQ(AppModel::shared().lessonID(), u"a1-l2"_s);
}

TEST_F(HalvorinAppTest, ALaterLaunchThatAsksForNothingLeavesTheScreenAndTheSearch)
{
    AppModel::shared().setScreen(Screen::Gear);
    AppModel::shared().setGlobalQuery(u"tripod"_s);
    lookElsewhere();
    const std::future<void> later = machine->launchAgain();
    EXPECT_TRUE(waitUntil([] { return window().isActive(); }));
    EXPECT_EQ(AppModel::shared().screen(), Screen::Gear);
    EXPECT_TRUE(AppModel::shared().showsResults());
    AppModel::shared().setGlobalQuery({});
}
