pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Simulator

/*! A camera's dial: a knob that shows the stop that it stands at, a button to either side and a
    slider over all stops. The value comes in as `value` and goes out with `moved`. Between two stops
    the knob shows the nearest. */
Item {
    id: root

    required property string title
    required property stopScale scaleOfStops
    required property double value
    required property hvColors c

    signal moved(double value)

    QtObject {
        id: metrics
        readonly property real knob: 64
        readonly property size button: Qt.size(34, 28)
        readonly property real gap: 8
        readonly property string label: root.scaleOfStops.label(root.value)
    }

    implicitWidth: 190
    implicitHeight: caption.height + knob.height + slider.height + 6

    MuteHvText {
        id: caption
        anchors.horizontalCenter: parent.horizontalCenter
        text: root.title
        font: Type.strongDetail
        color: root.c.oledDim
    }
    GlowButtonStyle {
        id: less
        anchors.right: knob.left
        anchors.rightMargin: metrics.gap
        anchors.verticalCenter: knob.verticalCenter
        width: metrics.button.width
        height: metrics.button.height
        c: root.c
        compact: true
        alignment: Text.AlignHCenter
        label: "−"
        tip: qsTr("Step down")
        Accessible.name: qsTr("%1: step down").arg(root.title)
        Accessible.description: metrics.label
        onClicked: root.moved(root.scaleOfStops.moved(root.value, -1))
    }
    Item {
        id: knob
        anchors.horizontalCenter: parent.horizontalCenter
        y: caption.height + 4
        width: metrics.knob
        height: metrics.knob

        SoftShadow {
            anchors.fill: parent
            anchors.margins: 2
            anchors.topMargin: 5
            radius: metrics.knob / 2
            blur: 6
            color: Metal.partShadow
        }
        KnobFace {
            anchors.fill: parent
        }
        MuteHvText {
            anchors.centerIn: parent
            width: metrics.knob - 14
            text: metrics.label
            color: root.c.glow
            font: Type.dialFigure
            fontSizeMode: Text.HorizontalFit
            minimumPointSize: 8
            horizontalAlignment: Text.AlignHCenter
        }
        WheelHandler {
            onWheel: event => slider.roll(event.angleDelta)
        }
    }
    GlowButtonStyle {
        id: more
        anchors.left: knob.right
        anchors.leftMargin: metrics.gap
        anchors.verticalCenter: knob.verticalCenter
        width: metrics.button.width
        height: metrics.button.height
        c: root.c
        compact: true
        alignment: Text.AlignHCenter
        label: "+"
        tip: qsTr("Step up")
        Accessible.name: qsTr("%1: step up").arg(root.title)
        Accessible.description: metrics.label
        onClicked: root.moved(root.scaleOfStops.moved(root.value, 1))
    }
    GlowSlider {
        id: slider
        readonly property Item focusFrame: root
        anchors.horizontalCenter: parent.horizontalCenter
        y: knob.y + knob.height + 2
        c: root.c
        scaleOfStops: root.scaleOfStops
        shown: root.value
        onMoved: value => root.moved(value)
        Accessible.role: Accessible.Slider
        Accessible.name: root.title
        Accessible.description: metrics.label
        Accessible.focusable: true
        Accessible.onIncreaseAction: slider.step(1)
        Accessible.onDecreaseAction: slider.step(-1)
    }
}
