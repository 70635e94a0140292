pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens

/*! The gear encyclopedia: its entries on the left, and on the right the page of one. Its drawing
    can be enlarged to the whole display. */
FocusScope {
    id: root

    required property hvColors c
    property bool enlarged: false

    function enlarge(): void {
        root.enlarged = true;
    }
    function putBack(): void {
        root.enlarged = false;
        page.focusDrawing();
    }

    QtObject {
        id: metrics
        readonly property real paneWidth: 300
    }

    GearList {
        id: entries
        onOpenIDChanged: root.enlarged = false
    }
    // Typing anywhere goes on with the search.
    Keys.onPressed: event => {
        if (!root.enlarged)
            pane.typeOn(event);
    }

    GearPane {
        id: pane
        focus: true
        enabled: !root.enlarged
        width: metrics.paneWidth
        height: root.height
        c: root.c
        entries: entries
    }
    Item {
        anchors.fill: parent
        anchors.leftMargin: metrics.paneWidth + 1
        enabled: !root.enlarged

        GearDetail {
            id: page
            anchors.fill: parent
            visible: entries.openID !== ""
            c: root.c
            entryID: entries.openID
            onEnlargeRequested: root.enlarge()
        }
        HvText {
            anchors.centerIn: parent
            width: Math.min(implicitWidth, parent.width - 48)
            visible: entries.openID === ""
            text: qsTr("Nothing matches. Try a shorter word.")
            font: Type.message
            color: root.c.oledDim
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
        }
    }
    // None or one: hardly anybody enlarges each drawing.
    Repeater {
        model: root.enlarged ? 1 : 0
        delegate: EnlargedDrawing {
            width: root.width
            height: root.height
            c: root.c
            kind: page.diagram
            title: page.title
            onClosed: root.putBack()
            Component.onCompleted: forceActiveFocus()
        }
    }
}
