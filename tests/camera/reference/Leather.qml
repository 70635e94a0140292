import QtQuick
import Halvorin.Camera

/*! The corner of a body. */
Rectangle {
    implicitWidth: 160
    implicitHeight: 120
    clip: true
    color: CameraPalette.current.oled

    CameraBodyBackground {
        x: 8
        y: 8
        width: 400
        height: 300
        c: CameraPalette.current
    }
}
