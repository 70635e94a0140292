import QtQuick
import Halvorin.Kit

/*! A small badge of anodized metal. */
Item {
    id: root

    required property string text

    implicitWidth: label.implicitWidth + 18
    implicitHeight: label.implicitHeight + 6

    Accessible.role: Accessible.StaticText
    Accessible.name: root.text

    ContinuousRectangle {
        anchors.fill: parent
        radius: height / 2
        fillFrom: CNUI.gray(1, 0.14)
        fillTo: CNUI.gray(1, 0.06)
        strokeWidth: 1
        strokeFrom: CNUI.gray(1, 0.35)
        strokeTo: CNUI.gray(1, 0.12)
    }
    MuteHvText {
        id: label
        anchors.centerIn: parent
        text: root.text
        font: CNUI.cnFont(10, Font.ExtraBold)
    }
}
