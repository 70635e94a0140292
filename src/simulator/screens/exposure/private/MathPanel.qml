import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Simulator

/*! How the exposure comes about. It needs a width. */
OLEDCard {
    id: root

    required property ExposureReadout readout

    padding: 14

    Column {
        width: parent.width
        spacing: 10

        SectionCaption {
            c: root.c
            topPadding: 0
            text: qsTr("EXPOSURE MATH")
        }
        FigureRows {
            width: parent.width
            c: root.c
            model: root.readout.math
        }
        HvText {
            width: parent.width
            text: root.readout.mathNote
            font: Type.detail
            color: root.c.oledDim
            lineHeight: 1.15
            wrapMode: Text.Wrap
        }
    }
}
