import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! The side with the strap lugs. */
Item {
    id: root

    required property hvColors c

    implicitWidth: Geometry.strapWidth

    component Lug: Item {
        width: 12
        height: 34
        anchors.horizontalCenter: parent.horizontalCenter
        SoftShadow {
            anchors.fill: parent
            anchors.topMargin: 2
            radius: 6
            blur: 4
            color: Metal.partShadow
        }
        ContinuousRectangle {
            anchors.fill: parent
            radius: 6
            fillFrom: Metal.lug.top
            fillTo: Metal.lug.bottom
            strokeWidth: 0.8
            strokeFrom: Metal.lug.edgeTop
            strokeTo: Metal.lug.edgeBottom
        }
    }

    Lug {
        anchors.top: parent.top
        anchors.topMargin: 20
    }
    Engraved {
        anchors.centerIn: parent
        rotation: 90
        c: root.c
        text: "CRVN"
        size: 10
    }
    Lug {
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 20
    }
}
