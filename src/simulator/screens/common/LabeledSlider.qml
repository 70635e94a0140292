import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Simulator

/*! A continuous slider with its title and reading above it. The value comes in as `value` and goes
    out with `moved`; one beyond the ends is read as it is. It needs a width. */
Item {
    id: root

    required property string title
    required property double value
    required property double from
    required property double to
    required property string unit
    required property hvColors c

    signal moved(double value)

    implicitHeight: words.implicitHeight + slider.implicitHeight

    MuteHvText {
        id: words
        width: parent.width - reading.width - 8
        text: root.title
        font: Type.row
        color: root.c.oledDim
        elide: Text.ElideRight
    }
    MuteHvText {
        id: reading
        anchors.right: parent.right
        anchors.baseline: words.baseline
        text: LabScales.reading(root.value, root.unit)
        font: Type.dialFigure
        color: root.c.oledText
    }
    GlowSlider {
        id: slider
        readonly property Item focusFrame: root
        // The handle, not its halo, begins and ends under the words.
        anchors {
            bottom: parent.bottom
            left: parent.left
            leftMargin: -3
            right: parent.right
            rightMargin: -3
        }
        c: root.c
        from: root.from
        to: root.to
        shown: root.value
        onMoved: value => root.moved(value)
        Accessible.role: Accessible.Slider
        Accessible.name: root.title
        Accessible.description: reading.text
        Accessible.focusable: true
        Accessible.onIncreaseAction: slider.step(1)
        Accessible.onDecreaseAction: slider.step(-1)
    }
}
