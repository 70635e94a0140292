import QtQuick
import Halvorin.Kit

/*! The ring around the control that has the keyboard's attention. */
ContinuousRectangle {
    id: root

    property real gap: 3
    property real cornerRadius: 10
    property color ink: CNUI.theme.text

    anchors.fill: parent
    anchors.margins: -root.gap
    radius: root.cornerRadius + root.gap
    strokeWidth: 2
    strokeFrom: root.ink
}
