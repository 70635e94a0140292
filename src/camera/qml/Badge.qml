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
        fillFrom: CNUI.gray(0.85)
        fillTo: CNUI.gray(0.45)
        strokeWidth: 1
        strokeFrom: CNUI.gray(0, 0.6)
    }
    MuteHvText {
        anchors.centerIn: parent
        text: "CRVN"
        color: CNUI.gray(0, 0.8)
        font: CNUI.cnFont(8.5, Font.Black)
    }
}
