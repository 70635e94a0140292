import QtQuick
import Halvorin.Camera

/*! A lit button over a quiet one. */
Rectangle {
    implicitWidth: 160
    implicitHeight: 92
    color: CameraPalette.current.oled

    Column {
        anchors.centerIn: parent
        spacing: 14
        GlowButtonStyle {
            c: CameraPalette.current
            prominent: true
            label: "Continue"
            symbol: "play.fill"
        }
        GlowButtonStyle {
            c: CameraPalette.current
            label: "Continue"
        }
    }
}
