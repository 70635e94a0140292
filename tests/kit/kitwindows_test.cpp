#include "kit/qml/kitwindows.h"

#include "kit/about.h"
#include "kit/help.h"
#include "kit/preferences.h"
#include "kit/printing.h"

#include <QGuiApplication>
#include <QQmlEngine>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class KitWindowsTest : public testing::Test
{
protected:
    KitWindowsTest()
    {
        Preferences::shared().keepInMemory();
        engine.addImportPath(u":/qt/qml"_s);
    }

    // The windows that show, by their titles.
    static QStringList shown()
    {
        QStringList titles;
        for (const QWindow *window : QGuiApplication::topLevelWindows()) {
            if (window->isVisible())
                titles.append(window->title());
        }
        return titles;
    }

    QQmlEngine engine;
    KitWindows windows{ engine };
};

} // namespace

TEST_F(KitWindowsTest, ShowAboutOnceHoweverOftenItIsOpened)
{
    CRVNAbout::show();
    CRVNAbout::show();
    ASSERT_EQ(shown().size(), 1);
    EXPECT_TRUE(shown().first().startsWith("About "_L1));
}

TEST_F(KitWindowsTest, ShowTheHelpOnceAndAgainAfterItWasClosed)
{
    CRVNHelp::show();
    CRVNHelp::show(u"about"_s);
    ASSERT_EQ(shown().size(), 1);
    EXPECT_TRUE(shown().first().endsWith(" Help"_L1));
    QGuiApplication::topLevelWindows().first()->close();
    EXPECT_EQ(shown(), QStringList());
    CRVNHelp::show();
    EXPECT_EQ(shown().size(), 1);
}

TEST(KitWindows, OpenNothingOnceTheyAreGone)
{
    {
        QQmlEngine engine;
        const KitWindows windows(engine);
    }
    CRVNHelp::show();
    CRVNAbout::show();
    for (const QWindow *window : QGuiApplication::topLevelWindows())
        EXPECT_FALSE(window->isVisible());
}
