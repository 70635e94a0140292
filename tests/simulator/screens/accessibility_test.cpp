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

// The same with a name.
QAccessibleInterface *find(QAccessibleInterface *from, QAccessible::Role role, const QString &name)
{
    if (!from || (from->role() == role && from->text(QAccessible::Name) == name))
        return from;
    for (int i = 0; i < from->childCount(); ++i) {
        if (QAccessibleInterface *found = find(from->child(i), role, name))
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
    [[nodiscard]] QAccessibleInterface *thing(QAccessible::Role role, const QString &name) const
    {
        return find(QAccessible::queryAccessibleInterface(m_window.get()), role, name);
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

TEST(LensLab, TakesALensInWhenAssistiveTechnologyTogglesIt)
{
    const Shown shown("LensLabView { anchors.fill: parent; c: CameraPalette.current }");
    QAccessibleInterface *lens = shown.thing(QAccessible::CheckBox, u"f/1.2"_s);
    ASSERT_TRUE(lens && lens->actionInterface());
    EXPECT_TRUE(lens->state().checkable);
    EXPECT_FALSE(lens->state().checked);
    EXPECT_FALSE(shown.thing(QAccessible::Graphic, u"Picture at f/1.2"_s));
    lens->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(lens->state().checked);
    EXPECT_TRUE(shown.thing(QAccessible::Graphic, u"Picture at f/1.2"_s));
}

TEST(ExposureLab, NamesItsPictureAndItsMeter)
{
    const Shown shown("ExposureLabView { anchors.fill: parent; c: CameraPalette.current }");
    QAccessibleInterface *picture = shown.thing(QAccessible::Graphic);
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->text(QAccessible::Name), u"Preview picture"_s);
    EXPECT_EQ(picture->text(QAccessible::Description),
        u"1.0 stop under, background blur 3.8 pixels, streak 5 pixels"_s);
    EXPECT_TRUE(shown.thing(QAccessible::Indicator, u"Light meter: −1.0 stop"_s));
    EXPECT_TRUE(shown.thing(QAccessible::ComboBox, u"Light"_s));
}
