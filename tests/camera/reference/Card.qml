import QtQuick
import Halvorin.Camera

/*! A card with a bar and a tag. */
Rectangle {
    implicitWidth: 180
    implicitHeight: 80
    color: CameraPalette.current.oled

    CardSurface {
        anchors.fill: parent
        anchors.margins: 8
        c: CameraPalette.current

        Tag {
            x: 14
            y: 14
            text: "Beginner"
            color: CameraPalette.current.good
        }
        ProgressBar {
            x: 14
            y: 46
            width: 136
            height: 4
            c: CameraPalette.current
            done: 3
            total: 7
        }
    }
}
