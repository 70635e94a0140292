import QtQuick
import Halvorin.Camera

/*! The camera's display: whatever is put into it, behind glass. */
Item {
    id: root

    required property hvColors c
    default property alias content: content.data

    Rectangle {
        anchors.fill: parent
        anchors.margins: Geometry.bezel
        radius: Geometry.displayRadius
        color: root.c.oled
    }
    FocusScope {
        id: content
        anchors.fill: parent
        anchors.margins: Geometry.bezel + Geometry.displayPadding
        focus: true
    }
    DisplayGlass {
        anchors.fill: parent
        c: root.c
    }
}
