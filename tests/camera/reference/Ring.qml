import QtQuick
import Halvorin.Camera

/*! A third of the course is done. */
Rectangle {
    implicitWidth: 170
    implicitHeight: 170
    color: CameraPalette.current.oled

    ProgressRing {
        anchors.centerIn: parent
        c: CameraPalette.current
        done: 17
        total: 50
    }
}
