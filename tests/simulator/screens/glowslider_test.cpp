// What assistive technology sees of the labs' controls, and does to them.
#include <QAccessible>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

QAccessibleInterface *find(QAccessibleInterface *from, QAccessible::Role role)
{
    if (!from || from->role() == role)
        return from;
    for (int i = 0; i < from->childCount(); ++i) {
        if (QAccessibleInterface *found = find(from->child(i), role))
            return found;
    }
    return nullptr;
}

class Shown
{
public:
    explicit Shown(const QByteArray &item)
    {
        m_engine.addImportPath(u":/qt/qml"_s);
        QQmlComponent component(&m_engine);
        component.setData("import QtQuick\nimport Halvorin.Camera\nimport Halvorin.Simulator\n"
                          "Window { width: 500; height: 400; visible: true\n"
                + item + "}",
            QUrl());
        m_window.reset(component.create());
        EXPECT_TRUE(m_window) << qPrintable(component.errorString());
    }

    [[nodiscard]] QAccessibleInterface *thing(QAccessible::Role role) const
    {
        return find(QAccessible::queryAccessibleInterface(m_window.get()), role);
    }

private:
    QQmlEngine m_engine;
    std::unique_ptr<QObject> m_window;
};

constexpr auto kDial = R"qml(StepDial {
    title: "Aperture"
    c: CameraPalette.current
    scaleOfStops: LabScales.aperture
    value: 4
    onMoved: stop => value = stop
})qml";

} // namespace

TEST(GlowSlider, IsASliderWithItsValueAsText)
{
    const Shown shown(kDial);
    QAccessibleInterface *slider = shown.thing(QAccessible::Slider);
    ASSERT_TRUE(slider);
    EXPECT_EQ(slider->text(QAccessible::Name), u"Aperture"_s);
    EXPECT_EQ(slider->text(QAccessible::Description), u"f/4"_s);
    EXPECT_TRUE(slider->state().focusable);
    QAccessibleValueInterface *value = slider->valueInterface();
    ASSERT_TRUE(value);
    EXPECT_EQ(value->currentValue().toDouble(), 4);
    EXPECT_EQ(value->minimumValue().toDouble(), 1);
    EXPECT_EQ(value->maximumValue().toDouble(), 32);
}

TEST(GlowSlider, GoesToTheStopNearestToWhatAssistiveTechnologyWrites)
{
    const Shown shown(kDial);
    QAccessibleInterface *slider = shown.thing(QAccessible::Slider);
    ASSERT_TRUE(slider && slider->valueInterface());
    slider->valueInterface()->setCurrentValue(5.5);
    EXPECT_EQ(slider->valueInterface()->currentValue().toDouble(), 5.6);
    EXPECT_EQ(slider->text(QAccessible::Description), u"f/5.6"_s);
}

TEST(GlowSlider, StepsWhenAssistiveTechnologyAsksForMoreOrLess)
{
    const Shown shown(kDial);
    QAccessibleInterface *slider = shown.thing(QAccessible::Slider);
    ASSERT_TRUE(slider && slider->actionInterface());
    slider->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    EXPECT_EQ(slider->text(QAccessible::Description), u"f/4.5"_s);
    slider->actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
    slider->actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
    EXPECT_EQ(slider->text(QAccessible::Description), u"f/3.5"_s);
}

TEST(LabeledSlider, ReadsItsValueWithTheUnit)
{
    const Shown shown(R"qml(LabeledSlider {
        width: 300
        title: "Subject distance (focus)"
        c: CameraPalette.current
        from: 0.5
        to: 20
        unit: "m"
        value: 3
        onMoved: distance => value = distance
    })qml");
    QAccessibleInterface *slider = shown.thing(QAccessible::Slider);
    ASSERT_TRUE(slider && slider->valueInterface());
    EXPECT_EQ(slider->text(QAccessible::Name), u"Subject distance (focus)"_s);
    EXPECT_EQ(slider->text(QAccessible::Description), u"3.0 m"_s);
    slider->valueInterface()->setCurrentValue(100);
    EXPECT_EQ(slider->valueInterface()->currentValue().toDouble(), 20);
    EXPECT_EQ(slider->text(QAccessible::Description), u"20 m"_s);
}
