import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Simulator

/*! The picture with its caption, and below it the meter, what it means and the two automatics. It
    needs a width. */
Column {
    id: root

    required property ExposureReadout readout
    required property ExposureControls controls
    required property hvColors c

    spacing: 12

    LabPicture {
        width: parent.width
        c: root.c
        photo: root.readout.picture
        radius: 12
        Accessible.role: Accessible.Graphic
        Accessible.name: qsTr("Preview picture")
        Accessible.description: root.readout.pictureInWords

        ContinuousRectangle {
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.bottom: parent.bottom
            anchors.bottomMargin: 10
            width: caption.implicitWidth + 12
            height: caption.implicitHeight + 12
            radius: 6
            fillFrom: Metal.veil

            HvText {
                id: caption
                anchors.centerIn: parent
                text: root.readout.caption
                font: Type.dialFigure
                color: "white"
            }
        }
    }
    OLEDCard {
        width: parent.width
        c: root.c
        padding: 14

        Column {
            width: parent.width
            spacing: 10

            LightMeter {
                width: parent.width
                c: root.c
                offset: root.readout.offset
                label: root.readout.meter
            }
            HvText {
                width: parent.width
                text: root.readout.verdict
                font: Type.message
                color: root.c.oledText
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
            }
            Flow {
                id: automatics
                readonly property bool sideBySide: width >= shutter.implicitWidth + aperture.implicitWidth + spacing
                readonly property real buttonWidth: sideBySide ? (width - spacing) / 2 : width
                width: parent.width
                spacing: 8

                GlowButtonStyle {
                    id: shutter
                    width: automatics.buttonWidth
                    c: root.c
                    compact: true
                    alignment: Text.AlignHCenter
                    label: qsTr("Set shutter for me (aperture priority)")
                    onClicked: root.controls.meterShutter()
                }
                GlowButtonStyle {
                    id: aperture
                    width: automatics.buttonWidth
                    c: root.c
                    compact: true
                    alignment: Text.AlignHCenter
                    label: qsTr("Set aperture for me (shutter priority)")
                    onClicked: root.controls.meterAperture()
                }
            }
        }
    }
}
