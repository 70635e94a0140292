// What a button does that no test in QML can see; the rest is tested with Pressable.

#include <QCoreApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

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
    /// As if the pointer or the focus came to a button, or left it.
    static void setOrnament(QQuickItem *of, const char *shows, bool on)
    {
        for (QObject *child : of->children()) {
            if (child->property(shows).isValid())
                child->setProperty(shows, on);
        }
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
    setOrnament(inside, "showsRing", true);
    ASSERT_FALSE(inside->childItems().isEmpty());
    // when
    delete inside;
    // then
    EXPECT_EQ(warnings, 0);
}

// A window that draws nothing for the moment doesn't notice that the pointer is no longer over what
// has left it.
TEST_F(ButtonBehavior, OutsideOfAWindowTellsNoTip)
{
    constexpr int tipWaits = 600; // ms, the delay of CNTip
    const QQuickWindow window;
    button->setProperty("tip", u"Opens the course"_s);
    for (QQuickItem *before : { static_cast<QQuickItem *>(nullptr), window.contentItem() }) {
        button->setParentItem(before);
        setOrnament(button.get(), "showsTip", true);
        button->setParentItem(nullptr);
        QTest::qWait(tipWaits + 100);
        setOrnament(button.get(), "showsTip", false);
        EXPECT_EQ(warnings, 0) << (before ? "has left its window" : "has had none");
    }
}
