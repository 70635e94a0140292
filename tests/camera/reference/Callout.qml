import QtQuick
import Halvorin.Camera
import Halvorin.Screens

/*! A course text with bullets and a callout. */
Rectangle {
    implicitWidth: 240
    implicitHeight: 110
    color: CameraPalette.current.oled

    RichText {
        anchors.fill: parent
        anchors.margins: 8
        c: CameraPalette.current
        text: "• Light first\n\n> Never look at the sun through a long lens."
    }
}
