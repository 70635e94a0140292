// What a button does that no test in QML can see; the rest is tested with Pressable.

#include <QCursor>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

TEST(ButtonBehavior, MakesThePointerAHand)
{
    QQmlEngine engine;
    engine.addImportPath(u":/qt/qml"_s);
    QQmlComponent component(&engine);
    component.setData("import Halvorin.Kit\nPressable { width: 20; height: 20 }", QUrl());
    const std::unique_ptr<QQuickItem> button(qobject_cast<QQuickItem *>(component.create()));
    ASSERT_NE(button, nullptr) << component.errorString().toStdString();
    EXPECT_EQ(button->cursor().shape(), Qt::PointingHandCursor);
}
