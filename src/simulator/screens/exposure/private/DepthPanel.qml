import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Simulator

/*! What is sharp and what is blurred, and whether a hand can hold the camera. It needs a width. */
OLEDCard {
    id: root

    required property ExposureReadout readout

    padding: 14

    Column {
        width: parent.width
        spacing: 10

        SectionCaption {
            width: parent.width
            c: root.c
            topPadding: 0
            text: qsTr("DEPTH OF FIELD & MOTION")
            wrapMode: Text.Wrap
        }
        FigureRows {
            width: parent.width
            c: root.c
            model: root.readout.depthAndMotion
        }
        Item {
            width: parent.width
            height: warning.implicitHeight
            visible: root.readout.shakeWarning !== ""

            Symbol {
                id: mark
                name: "exclamationmark.triangle"
                pointSize: 13
                weight: Font.DemiBold
                ink: root.c.warn
            }
            HvText {
                id: warning
                x: mark.width + 8
                width: parent.width - x
                text: root.readout.shakeWarning
                font: Type.detail
                color: root.c.warn
                wrapMode: Text.Wrap
            }
        }
    }
}
