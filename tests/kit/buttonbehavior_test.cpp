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
        engine.addImportPath(u":/qt/qml"_s);
        QObject::connect(&engine, &QQmlEngine::warnings,
            [this](const QList<QQmlError> &told) { warnings += told.size(); });
        QQmlComponent component(&engine);
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

    QQmlEngine engine;
    std::unique_ptr<QQuickItem> button;
    qsizetype warnings = 0; ///< Of QML's.
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

TEST_F(ButtonBehavior, GoesWithItsRingAndSaysNothing)
{
    // given: a button inside something that stays, and that shows its focus
    QQmlComponent component(&engine);
    component.setData("import QtQuick\n"
                      "import Halvorin.Kit\n"
                      "Item { property Item button: Pressable { } }",
        QUrl());
    const std::unique_ptr<QObject> around(component.create());
    auto *inside = around->property("button").value<QQuickItem *>();
    ASSERT_NE(inside, nullptr) << component.errorString().toStdString();
    for (QObject *child : inside->children()) {
        if (child->property("showsRing").isValid())
            child->setProperty("showsRing", true);
    }
    ASSERT_FALSE(inside->childItems().isEmpty());
    // when
    delete inside;
    // then
    EXPECT_EQ(warnings, 0);
}
