import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! The side with the strap lugs. */
Item {
    id: root

    required property hvColors c

    implicitWidth: 26

    component Lug: Item {
        width: 12
        height: 34
        anchors.horizontalCenter: parent.horizontalCenter
        SoftShadow {
            anchors.fill: parent
            anchors.topMargin: 2
            radius: 6
            blur: 4
            color: CNUI.gray(0, 0.6)
        }
        ContinuousRectangle {
            anchors.fill: parent
            radius: 6
            fillFrom: CNUI.gray(0.7)
            fillTo: CNUI.gray(0.3)
            strokeWidth: 0.8
            strokeFrom: CNUI.gray(1, 0.5)
            strokeTo: CNUI.gray(0, 0.5)
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
