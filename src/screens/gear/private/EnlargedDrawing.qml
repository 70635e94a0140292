pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Diagrams

/*! A drawing on the whole display. A click, Return and Escape put it back. */
FocusScope {
    id: root

    required property hvColors c
    required property string kind
    required property string title

    signal closed()

    QtObject {
        id: metrics
        readonly property real padding: 24
    }

    Accessible.role: Accessible.Dialog
    Accessible.name: root.title
    Keys.onPressed: event => {
        event.accepted = true; // Nothing behind it hears a key.
        if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter || event.key === Qt.Key_Escape)
            root.closed();
    }

    Rectangle {
        anchors.fill: parent
        anchors.margins: -Geometry.displayPadding
        radius: Geometry.displayRadius
        color: root.c.oled

        MouseArea {
            anchors.fill: parent
            hoverEnabled: true
            cursorShape: Qt.PointingHandCursor
            onClicked: root.closed()
            onWheel: wheel => wheel.accepted = true
        }
    }
    GlowingTitle {
        id: name
        x: metrics.padding
        y: metrics.padding
        width: close.x - 2 * metrics.padding
        c: root.c
        title: root.title
    }
    GlowButtonStyle {
        id: close
        anchors.right: parent.right
        anchors.rightMargin: metrics.padding
        y: metrics.padding
        focus: true
        c: root.c
        compact: true
        symbol: "xmark"
        label: qsTr("Close")
        onClicked: root.closed()
    }
    GearDiagramView {
        id: drawing
        anchors {
            fill: parent
            margins: metrics.padding
            topMargin: metrics.padding + Math.max(name.height, close.height) + 12
        }
        layout: DiagramCanvas.Whole
        kind: root.kind
        glow: root.c.glow
        label: root.c.oledText

        // The callouts as they are read out, one by one. The items show nothing themselves.
        Repeater {
            model: drawing.calloutTexts
            delegate: Item {
                required property int index
                required property string modelData
                y: index
                width: drawing.width
                height: 1
                Accessible.role: Accessible.StaticText
                Accessible.name: modelData
            }
        }
    }
}
