import QtQuick
import Halvorin.Camera
import Halvorin.Kit

/*! The mode dial without its word. */
Rectangle {
    implicitWidth: 80
    implicitHeight: 80
    color: CameraPalette.current.body

    SoftShadow {
        anchors.fill: face
        anchors.margins: 3
        anchors.topMargin: 6
        radius: 29
        blur: 7
        color: CNUI.gray(0, 0.6)
    }
    DialFace {
        id: face
        anchors.centerIn: parent
        width: 58
        height: 58
        c: CameraPalette.current
        turn: 80
    }
}
