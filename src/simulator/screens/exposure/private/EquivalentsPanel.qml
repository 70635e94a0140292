pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Simulator

/*! The pairs of aperture and shutter that expose alike; a click sets the camera to one. It needs a
    width. */
OLEDCard {
    id: root

    required property ExposureReadout readout

    padding: 14

    Column {
        width: parent.width
        spacing: 2

        SectionCaption {
            width: parent.width
            c: root.c
            topPadding: 0
            bottomPadding: 6
            text: qsTr("SAME EXPOSURE, OTHER CHOICES")
            wrapMode: Text.Wrap
        }
        Repeater {
            model: root.readout.equivalents
            delegate: Pressable {
                id: pair

                required property int index
                required property string aperture
                required property string shutter
                required property string iso
                required property bool current

                QtObject {
                    id: metrics
                    readonly property color ink: pair.current ? root.c.glow : root.c.oledText
                    readonly property font lettering: pair.current ? Type.currentRow : Type.row
                }

                width: parent?.width ?? 0
                height: 21
                horizontalPadding: 8
                cornerRadius: 6
                focusInk: root.c.oledText
                label: `${pair.aperture}, ${pair.shutter}, ${pair.iso}`
                Accessible.description: pair.current ? qsTr("Current settings") : ""
                onClicked: root.readout.equivalents.choose(pair.index)

                contentItem: Item {
                    MuteHvText {
                        anchors.verticalCenter: parent.verticalCenter
                        text: pair.aperture
                        font: metrics.lettering
                        color: metrics.ink
                    }
                    MuteHvText {
                        x: 52
                        anchors.verticalCenter: parent.verticalCenter
                        text: pair.shutter
                        font: metrics.lettering
                        color: metrics.ink
                    }
                    MuteHvText {
                        anchors.right: parent.right
                        anchors.verticalCenter: parent.verticalCenter
                        text: pair.iso
                        font: metrics.lettering
                        color: pair.current ? root.c.glow : root.c.oledDim
                    }
                }
                background: ContinuousRectangle {
                    radius: pair.cornerRadius
                    fillFrom: pair.current ? root.c.track : pair.hovered ? root.c.hover : "transparent"
                    strokeWidth: pair.current ? 1 : 0
                    strokeFrom: root.c.fieldEdge
                }
            }
        }
    }
}
