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
        fillFrom: Metal.anodized.top
        fillTo: Metal.anodized.bottom
        strokeWidth: 1
        strokeFrom: Metal.anodized.edgeTop
        strokeTo: Metal.anodized.edgeBottom
    }
    MuteHvText {
        id: label
        anchors.centerIn: parent
        text: root.text
        font: Type.pill
    }
}
