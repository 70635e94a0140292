#include "kit/qml/framememory.h"

#include "kit/preferences.h"
#include "kit/printing.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QScreen>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString kKey = u"crvn.frame.test"_s;

// Windows on a desktop without panels or window manager.
class FrameMemoryTest : public testing::Test
{
protected:
    FrameMemoryTest()
    {
        Preferences::shared().keepInMemory();
        Preferences::shared().remove(kKey);
        engine.addImportPath(u":/qt/qml"_s);
    }
    ~FrameMemoryTest() override { Preferences::shared().remove(kKey); }

    std::unique_ptr<QQuickWindow> open()
    {
        QQmlComponent component(&engine);
        component.setData(R"(
            import QtQuick
            import Halvorin.Kit
            Window {
                id: root
                property size usual: Qt.size(400, 300)
                property bool placed: memory.placed
                property size room: memory.room
                width: memory.size(usual).width
                height: memory.size(usual).height
                minimumWidth: 120
                minimumHeight: 100
                FrameMemory { id: memory; name: "test"; window: root }
            })",
            {});
        std::unique_ptr<QQuickWindow> window(qobject_cast<QQuickWindow *>(component.create()));
        EXPECT_TRUE(window) << qPrintable(component.errorString());
        return window;
    }
    // What a run leaves behind that ends with the window at this place.
    void leave(const QRect &area)
    {
        const auto window = open();
        window->show();
        window->setGeometry(area);
        window->close();
    }

    QQmlEngine engine;
};

} // namespace

TEST_F(FrameMemoryTest, BeginsWithTheUsualSize)
{
    const auto window = open();
    EXPECT_EQ(window->size(), QSize(400, 300));
    EXPECT_FALSE(window->property("placed").toBool());
}

TEST_F(FrameMemoryTest, BeginsNoLargerThanTheScreen)
{
    const auto window = open();
    const QSize screen = window->screen()->availableSize();
    window->setProperty("usual", QSizeF(9000, 300));
    EXPECT_EQ(window->size(), QSize(screen.width(), 300));
    window->setProperty("usual", QSizeF(400, 9000));
    EXPECT_EQ(window->size(), QSize(400, screen.height() - 40)); // its title bar is to be seen too
    EXPECT_EQ(window->property("room").toSizeF(), QSizeF(screen - QSize(0, 40)));
}

TEST_F(FrameMemoryTest, BringsSizeAndPlaceBack)
{
    const QRect area(50, 60, 420, 310);
    leave(area);
    const auto window = open();
    EXPECT_TRUE(window->property("placed").toBool());
    EXPECT_EQ(window->geometry(), area);
}

TEST_F(FrameMemoryTest, KeepsTheSizeAloneWhereTheScreenIsGone)
{
    Preferences::shared().set(kKey, u"90000 60 420 310"_s);
    const auto window = open();
    EXPECT_FALSE(window->property("placed").toBool());
    EXPECT_EQ(window->size(), QSize(420, 310));
}

TEST_F(FrameMemoryTest, IgnoresWhatIsNoFrame)
{
    for (const char *text : { "abc", "0 0 0 0", "5 5 -3 200", "", "1 2 3 4 5 6" }) {
        Preferences::shared().set(kKey, QString::fromLatin1(text));
        const auto window = open();
        EXPECT_EQ(window->size(), QSize(400, 300)) << text;
        EXPECT_FALSE(window->property("placed").toBool()) << text;
    }
}

TEST_F(FrameMemoryTest, OpensMaximizedWhatWasAndKnowsWhatThatGoesBackTo)
{
    Preferences::shared().set(kKey, u"50 60 420 310 maximized"_s);
    const auto window = open();
    window->show();
    EXPECT_TRUE(window->windowStates().testFlag(Qt::WindowMaximized));
    window->close();
    EXPECT_EQ(Preferences::shared().text(kKey), u"50 60 420 310 maximized"_s);
}

TEST_F(FrameMemoryTest, WritesNothingForAWindowThatWasNeverShown)
{
    open();
    EXPECT_FALSE(Preferences::shared().contains(kKey));
}
