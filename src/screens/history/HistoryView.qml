import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens

/*! The history: the timeline on the left, era by era, and on the right one event with its
    sources. */
FocusScope {
    id: root

    required property hvColors c

    QtObject {
        id: metrics
        readonly property real paneWidth: 340
        readonly property real padding: 14
        readonly property real barRoom: 11 // the scroll bar stands in the padding
    }

    SidePane {
        width: metrics.paneWidth
        height: root.height
        c: root.c
    }
    WalkedList {
        id: list
        x: metrics.padding
        width: metrics.paneWidth - 2 * metrics.padding + metrics.barRoom
        height: root.height + Geometry.displayPadding // rows run under the display's edge
        focus: true
        c: root.c
        spacing: 0
        selectedRow: events.selectedRow
        bottomMargin: metrics.padding + Geometry.displayPadding
        Accessible.name: qsTr("Timeline")
        model: EventList {
            id: events
        }
        // Qt 6.4's ListView can't create sections of a file that binds its components, so these
        // reach out unbound.
        // qmllint disable unqualified
        section.property: "era"
        section.delegate: SectionCaption {
            required property string section
            width: metrics.paneWidth - 2 * metrics.padding
            c: root.c
            leftPadding: 6
            topPadding: 12
            bottomPadding: 4
            text: section.toUpperCase()
            color: root.c.warn
            wrapMode: Text.Wrap
        }
        delegate: EventRow {
            width: metrics.paneWidth - 2 * metrics.padding
            c: root.c
            onClicked: events.open(index)
            onWalked: event => list.walk(index, event)
        }
        // qmllint enable unqualified
    }
    EventPage {
        anchors.fill: parent
        anchors.leftMargin: metrics.paneWidth + 1
        c: root.c
    }
}
