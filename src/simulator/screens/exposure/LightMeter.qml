import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Simulator

/*! The light meter of a viewfinder: a scale of three stops to either side of the right exposure, and
    a needle below it. `label` says the same in words. It needs a width. */
Item {
    id: root

    required property double offset
    required property string label
    required property hvColors c

    QtObject {
        id: metrics
        readonly property real strip: 32
        readonly property size needle: Qt.size(12, 10)
        readonly property real needleY: 19
        readonly property real glow: 4
    }

    implicitHeight: metrics.strip + zero.implicitHeight

    Accessible.role: Accessible.Indicator
    Accessible.name: root.label

    MeterScale {
        id: ticks
        width: parent.width
        height: metrics.strip
        c: root.c
        offset: root.offset
    }
    Triangle {
        x: ticks.needleX - width / 2
        y: metrics.needleY - metrics.glow
        width: metrics.needle.width + 2 * metrics.glow
        height: metrics.needle.height + 2 * metrics.glow
        ink: ticks.needleInk
        glow: metrics.glow
    }
    MuteHvText {
        anchors.bottom: parent.bottom
        text: "−3"
        font: Type.scaleFigure
        color: root.c.oledDim
    }
    MuteHvText {
        id: zero
        anchors.bottom: parent.bottom
        anchors.horizontalCenter: parent.horizontalCenter
        text: "0"
        font: Type.scaleFigure
        color: root.c.oledDim
    }
    MuteHvText {
        anchors.bottom: parent.bottom
        anchors.right: parent.right
        text: "+3"
        font: Type.scaleFigure
        color: root.c.oledDim
    }
}
