import QtQuick
import Halvorin.Kit

/*! The maker's badge on the top plate. */
Item {
    implicitWidth: 34
    implicitHeight: 34

    Accessible.role: Accessible.Graphic
    Accessible.name: "CRVN"

    ContinuousRectangle {
        anchors.fill: parent
        radius: 17
        fillFrom: Metal.badge.top
        fillTo: Metal.badge.bottom
        strokeWidth: 1
        strokeFrom: Metal.badge.edgeTop
    }
    MuteHvText {
        anchors.centerIn: parent
        text: "CRVN"
        color: Metal.print
        font: Type.badge
    }
}
