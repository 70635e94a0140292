import QtQuick
import Halvorin.Kit

/*! The ring around the control that has the keyboard's attention. */
ContinuousRectangle {
    id: root

    required property Pressable control

    readonly property real gap: 3

    anchors.fill: parent
    anchors.margins: -root.gap
    radius: root.control.cornerRadius + root.gap
    strokeWidth: 2
    strokeFrom: root.control.focusInk
}
