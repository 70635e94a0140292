// What assistive technology is told of texts.

#include "support/qtprinters.h"

#include <QAccessible>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

class HvTextTest : public ::testing::Test
{
protected:
    HvTextTest() { m_engine.addImportPath(u":/qt/qml"_s); }

    std::unique_ptr<QQuickItem> make(const QByteArray &type)
    {
        QQmlComponent component(&m_engine);
        component.setData("import Halvorin.Kit\n" + type + " { text: '<b>x</b>' }", QUrl());
        std::unique_ptr<QQuickItem> item(qobject_cast<QQuickItem *>(component.create()));
        EXPECT_NE(item, nullptr) << component.errorString().toStdString();
        return item;
    }

private:
    QQmlEngine m_engine;
};

} // namespace

TEST_F(HvTextTest, IsReadOut)
{
    const std::unique_ptr<QQuickItem> text = make("HvText");
    const QAccessibleInterface *told = QAccessible::queryAccessibleInterface(text.get());
    ASSERT_NE(told, nullptr);
    EXPECT_EQ(told->role(), QAccessible::StaticText);
    EXPECT_EQ(told->text(QAccessible::Name), u"<b>x</b>"_s);
}

TEST_F(HvTextTest, IsPassedOverWhenMute)
{
    EXPECT_EQ(QAccessible::queryAccessibleInterface(make("MuteHvText").get()), nullptr);
}
