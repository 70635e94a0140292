// What assistive technology is told of the rail; the rest is tested in QML.

#include "shell/appmodel.h"

#include <QAccessible>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

// The titles of the buttons that are checked, of those that can be.
QStringList checkedTitles(const QAccessibleInterface &rail)
{
    QStringList result;
    for (int i = 0; i < rail.childCount(); ++i) {
        const QAccessibleInterface *button = rail.child(i);
        if (button->state().checkable && button->state().checked)
            result.append(button->text(QAccessible::Name));
    }
    return result;
}

class GripRail : public ::testing::Test
{
protected:
    // Buttons set what they tell themselves, but only while somebody listens.
    void SetUp() override { QAccessible::setActive(true); }
    void TearDown() override { QAccessible::setActive(false); }
};

} // namespace

TEST_F(GripRail, TellsWhichScreenIsShownFromTheStart)
{
    QQmlEngine engine;
    engine.addImportPath(u":/qt/qml"_s);
    QQmlComponent component(&engine);
    component.setData(R"(
        import QtQuick
        import Halvorin.Camera
        Window {
            width: 300; height: 800; visible: true
            GripRail { c: CameraPalette.current; height: 700 }
        })",
        QUrl());
    const std::unique_ptr<QObject> window(component.create());
    ASSERT_TRUE(window) << qPrintable(component.errorString());

    const QAccessibleInterface *shown = QAccessible::queryAccessibleInterface(window.get());
    ASSERT_NE(shown, nullptr);
    ASSERT_EQ(shown->childCount(), 1);
    const QAccessibleInterface *rail = shown->child(0);
    EXPECT_EQ(rail->role(), QAccessible::List);
    EXPECT_EQ(rail->text(QAccessible::Name), u"Screens"_s);
    EXPECT_EQ(rail->childCount(), 9);
    EXPECT_EQ(checkedTitles(*rail), QStringList(u"Campus"_s));
    AppModel::shared().setScreen(Screen::Course);
    EXPECT_EQ(checkedTitles(*rail), QStringList(u"Course"_s));
    AppModel::shared().setScreen(Screen::Home);
}
