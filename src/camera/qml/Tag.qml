import QtQuick
import Halvorin.Kit

/*! A word in a tinted capsule, such as a lesson's level. */
Item {
    id: root

    required property string text
    required property color color

    QtObject {
        id: metrics
        readonly property size pad: Qt.size(7, 2.5)
    }

    implicitWidth: label.implicitWidth + 2 * metrics.pad.width
    implicitHeight: label.implicitHeight + 2 * metrics.pad.height
    visible: root.text !== ""

    Accessible.role: Accessible.StaticText
    Accessible.name: root.text

    ContinuousRectangle {
        anchors.fill: parent
        radius: height / 2
        fillFrom: Qt.alpha(root.color, 0.13)
        strokeWidth: 0.8
        strokeFrom: Qt.alpha(root.color, 0.5)
    }
    HvText {
        id: label
        anchors.centerIn: parent
        text: root.text.toUpperCase()
        decorative: true
        color: root.color
        font: CNUI.cnFont(9.5, Font.ExtraBold, 0.7)
    }
}
