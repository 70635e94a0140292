import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! The camera's display: whatever is put into it, behind glass. */
Item {
    id: root

    required property hvColors c
    default property alias content: content.data

    QtObject {
        id: metrics
        readonly property real bezel: 7
        readonly property real padding: 10
        // The glass gives the corners their shape; these only have to end under its bezel.
        readonly property real corner: 14
    }

    Rectangle {
        anchors.fill: parent
        anchors.margins: metrics.bezel
        radius: metrics.corner
        color: root.c.oled
    }
    FocusScope {
        id: content
        anchors.fill: parent
        anchors.margins: metrics.bezel + metrics.padding
        focus: true
    }
    DisplayGlass {
        anchors.fill: parent
        c: root.c
    }
}
