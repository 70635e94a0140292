// The application inside this process, where its window can be looked at.

#include "shell/launch/halvorinapp.h"

#include "shell/launch/singleinstance.h"
#include "shell/setup.h"
#include "store/storetesting.h"
#include "support/environment.h"
#include "support/testcourse.h"

#include <QQuickItem>
#include <QTimer>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>

using namespace Qt::StringLiterals;
using namespace StoreTesting;

namespace {

// Waits, with the event loop running, until something holds.
bool waitUntil(const std::function<bool()> &holds)
{
    constexpr int patience = 60000; // ms
    QTimer alarm;                   // also wakes the loop below
    alarm.setSingleShot(true);
    alarm.start(patience);
    while (!holds() && alarm.isActive())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return holds();
}

// The application on an offscreen display, for a user who has nothing stored. All tests share one,
// for QML doesn't survive the application object of its process.
class Machine
{
public:
    Machine()
    {
        TestCourse::write(m_home.path(u"course"_s));
        HalvorinApp::prepareEnvironment();
        m_app = std::make_unique<HalvorinApp>(m_argc, m_argv);
    }

    [[nodiscard]] HalvorinApp &app() const { return *m_app; }

    // What the process of a later launch does; the token is the desktop's permission to it.
    void launchAgain(const QByteArray &token = {}) const
    {
        SingleInstance later(m_home.path());
        ASSERT_FALSE(later.isFirst());
        later.callFirst(token);
    }

private:
    Folder m_home;
    EnvironmentVariable m_platform{ "QT_QPA_PLATFORM", u"offscreen"_s };
    EnvironmentVariable m_backend{ "QT_QUICK_BACKEND", u"software"_s };
    EnvironmentVariable m_data{ "XDG_DATA_HOME", m_home.path(u"data"_s) };
    EnvironmentVariable m_config{ "XDG_CONFIG_HOME", m_home.path(u"config"_s) };
    EnvironmentVariable m_runtime{ "XDG_RUNTIME_DIR", m_home.path() };
    EnvironmentVariable m_database{ "HV_DB_PATH", std::nullopt };
    EnvironmentVariable m_token{ "XDG_ACTIVATION_TOKEN", std::nullopt };
    EnvironmentVariable m_content{ "HV_CONTENT", m_home.path(u"course"_s) };
    int m_argc = 1;
    char m_name[9] = "halvorin";
    char *m_argv[2] = { m_name, nullptr };
    std::unique_ptr<HalvorinApp> m_app;
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

// The texts in `item` that a person sees.
QList<QQuickItem *> shownTexts(QQuickItem *item)
{
    QList<QQuickItem *> texts;
    if (!item->isVisible())
        return texts;
    if (item->inherits("QQuickText") && !item->property("text").toString().isEmpty())
        texts.append(item);
    for (QQuickItem *child : item->childItems())
        texts.append(shownTexts(child));
    return texts;
}

// A component is known by the name of its file.
QQuickItem *part(QQuickItem *root, QByteArrayView name)
{
    if (QByteArrayView(root->metaObject()->className()).startsWith(name))
        return root;
    for (QQuickItem *child : root->childItems()) {
        if (QQuickItem *found = part(child, name))
            return found;
    }
    return nullptr;
}

} // namespace

TEST_F(HalvorinAppTest, KnowsTheFontsOfItsFirstScreenBeforehand)
{
    QQuickItem *camera = part(window().contentItem(), "MainWindow_");
    ASSERT_TRUE(camera);
    const QList<QQuickItem *> texts = shownTexts(camera);
    EXPECT_GT(texts.size(), 20);
    const QList<QFont> fonts = HVSetup::firstFonts();
    for (const QQuickItem *text : texts) {
        const QFont worn = text->property("font").value<QFont>();
        const bool known = std::ranges::any_of(fonts, [&worn](const QFont &font) {
            return font.family() == worn.family() && font.pointSizeF() == worn.pointSizeF()
                && font.weight() == worn.weight();
        });
        EXPECT_TRUE(known) << qPrintable(text->property("text").toString()) << " in "
                           << qPrintable(worn.toString());
    }
}

TEST_F(HalvorinAppTest, KnowsTheCameraOfItsFirstScreenBeforehand)
{
    const QQuickItem *body = part(window().contentItem(), "CameraBodyBackground");
    const QQuickItem *glass = part(window().contentItem(), "DisplayGlass");
    ASSERT_TRUE(body && glass);
    const CameraBody::Body known = HVSetup::firstBody(1, HVColors());
    EXPECT_EQ(body->size(), QSizeF(known.size));
    EXPECT_EQ(body->property("display").toRectF(), known.display);
    EXPECT_EQ(glass->size(), QSizeF(HVSetup::firstGlass(1, HVColors()).size));
}

TEST_F(HalvorinAppTest, ShowsOneWindowUnderTheProgramsName)
{
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(window().title(), u"CRVN Halvorin"_s);
    EXPECT_EQ(QGuiApplication::applicationDisplayName(), u"CRVN Halvorin"_s);
}

TEST_F(HalvorinAppTest, EndsWhenItsOnlyWindowIsClosed)
{
    QTimer::singleShot(0, &window(), &QWindow::close);
    EXPECT_EQ(machine->app().run(), 0);
}

TEST_F(HalvorinAppTest, ALaterLaunchBringsTheWindowToTheFront)
{
    lookElsewhere();
    machine->launchAgain();
    EXPECT_TRUE(waitUntil([] { return window().isActive(); }));
}

TEST_F(HalvorinAppTest, ALaterLaunchHandsItsPermissionToTheWindow)
{
    // This is where a platform looks for it when a window asks for the user's attention.
    machine->launchAgain("token-of-the-desktop");
    EXPECT_TRUE(
        waitUntil([] { return qgetenv("XDG_ACTIVATION_TOKEN") == "token-of-the-desktop"; }));
}

TEST_F(HalvorinAppTest, ALaterLaunchShowsAMinimizedWindow)
{
    window().showMinimized();
    machine->launchAgain();
    EXPECT_TRUE(waitUntil([] { return window().windowState() == Qt::WindowNoState; }));
    EXPECT_TRUE(window().isVisible());
}

TEST_F(HalvorinAppTest, ALaterLaunchShowsAMinimizedWindowAsLargeAsItWas)
{
    window().setWindowStates(Qt::WindowMinimized | Qt::WindowMaximized);
    machine->launchAgain();
    EXPECT_TRUE(waitUntil([] { return !window().windowStates().testFlag(Qt::WindowMinimized); }));
    EXPECT_EQ(window().windowStates(), Qt::WindowMaximized);
}

TEST_F(HalvorinAppTest, ALaterLaunchKeepsAMaximizedWindowMaximized)
{
    window().showMaximized();
    lookElsewhere();
    machine->launchAgain();
    EXPECT_TRUE(waitUntil([] { return window().isActive(); }));
    EXPECT_EQ(window().windowStates(), Qt::WindowMaximized);
}

TEST_F(HalvorinAppTest, ALaterLaunchLeavesAWindowOnTheFullScreen)
{
    window().showFullScreen();
    lookElsewhere();
    machine->launchAgain();
    EXPECT_TRUE(waitUntil([] { return window().isActive(); }));
    EXPECT_EQ(window().windowStates(), Qt::WindowFullScreen);
}
