pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Simulator

/*! The pictures of the comparison side by side. It needs a width. */
Row {
    id: root

    required property LensComparison comparison
    required property hvColors c

    spacing: 10

    Repeater {
        model: root.comparison
        delegate: Column {
            id: shot

            required property string label
            required property string shutter
            required property photo thumb

            width: (root.width - (root.comparison.count - 1) * root.spacing) / root.comparison.count
            spacing: 5

            LabPicture {
                width: parent.width
                c: root.c
                photo: shot.thumb
                radius: 8
                Accessible.role: Accessible.Graphic
                Accessible.name: qsTr("Picture at %1").arg(shot.label)
            }
            HvText {
                anchors.horizontalCenter: parent.horizontalCenter
                text: `${shot.label}  ${shot.shutter}`
                font: Type.strongDetail
                color: root.c.oledText
            }
        }
    }
}
