import QtQuick
import Halvorin.Kit

/*! A word in a tinted capsule, such as a lesson's level. */
ContinuousRectangle {
    id: root

    required property string text
    required property color color

    implicitWidth: label.implicitWidth + 14
    implicitHeight: label.implicitHeight + 5
    visible: root.text !== ""

    radius: height / 2
    fillFrom: Qt.alpha(root.color, 0.13)
    strokeWidth: 0.8
    strokeFrom: Qt.alpha(root.color, 0.5)

    Accessible.role: Accessible.StaticText
    Accessible.name: root.text

    MuteHvText {
        id: label
        anchors.centerIn: parent
        width: Math.min(implicitWidth, root.width - 14)
        elide: Text.ElideRight
        text: root.text.toUpperCase()
        color: root.color
        font: Type.tag
    }
}
