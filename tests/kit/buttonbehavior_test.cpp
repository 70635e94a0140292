// What a button does that no test in QML can see; the rest is tested with Pressable.

#include <QCoreApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

class ButtonBehavior : public ::testing::Test
{
protected:
    void SetUp() override
    {
        m_engine.addImportPath(u":/qt/qml"_s);
        QQmlComponent component(&m_engine);
        component.setData("import Halvorin.Kit\n"
                          "Pressable { property int clicks; onClicked: ++clicks; width: 20 }",
            QUrl());
        button.reset(qobject_cast<QQuickItem *>(component.create()));
        ASSERT_NE(button, nullptr) << component.errorString().toStdString();
    }

    enum class Held { No, Yes };

    void send(QEvent::Type type, Qt::Key key, Held held = Held::No)
    {
        QKeyEvent event(type, key, Qt::NoModifier, {}, held == Held::Yes);
        QCoreApplication::sendEvent(button.get(), &event);
    }
    [[nodiscard]] int clicks() const { return button->property("clicks").toInt(); }

    std::unique_ptr<QQuickItem> button;

private:
    QQmlEngine m_engine;
};

} // namespace

TEST_F(ButtonBehavior, MakesThePointerAHand)
{
    EXPECT_EQ(button->cursor().shape(), Qt::PointingHandCursor);
}

TEST_F(ButtonBehavior, ClicksOnceHoweverLongAKeyIsHeld)
{
    int before = 0;
    for (const Qt::Key key : { Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space }) {
        // A held key repeats its press; some platforms repeat the release as well.
        send(QEvent::KeyPress, key);
        for (int i = 0; i < 3; ++i) {
            send(QEvent::KeyRelease, key, Held::Yes);
            send(QEvent::KeyPress, key, Held::Yes);
        }
        send(QEvent::KeyRelease, key);
        EXPECT_EQ(clicks() - before, 1) << key;
        before = clicks();
    }
}

TEST_F(ButtonBehavior, IsNotClickedByAKeyThatWasHeldBeforeItHadTheFocus)
{
    for (const Qt::Key key : { Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space }) {
        send(QEvent::KeyPress, key, Held::Yes);
        send(QEvent::KeyRelease, key, Held::Yes);
        send(QEvent::KeyPress, key, Held::Yes);
        send(QEvent::KeyRelease, key);
    }
    EXPECT_EQ(clicks(), 0);
}
