import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens

/*! The library's films: a filter, and the list of what is left, under the titles of the modules. */
FocusScope {
    id: root

    required property hvColors c
    required property VideoList videos

    function typeOn(event: var): void {
        filter.typeOn(event);
    }

    QtObject {
        id: metrics
        readonly property real padding: 14
        readonly property real spacing: 10
        readonly property real barRoom: 11 // the scroll bar stands in the padding
    }

    Connections {
        target: root.videos
        function onModelReset(): void {
            list.beginLater();
        }
    }
    SidePane {
        anchors.fill: parent
        c: root.c
    }
    OLEDSearchField {
        id: filter
        x: metrics.padding
        y: metrics.padding
        width: parent.width - 2 * metrics.padding
        c: root.c
        prompt: qsTr("Filter videos")
        text: root.videos.filter
        outcome: root.videos.outcome
        onEdited: text => root.videos.filter = text
        Keys.onDownPressed: list.focusRow(list.currentIndex)
        Keys.onReturnPressed: root.videos.open(0)
        Keys.onEnterPressed: root.videos.open(0)
    }
    WalkedList {
        id: list
        x: metrics.padding
        width: filter.width + metrics.barRoom
        anchors.top: filter.bottom
        anchors.topMargin: metrics.spacing
        anchors.bottom: parent.bottom
        anchors.bottomMargin: -Geometry.displayPadding // rows run under the display's edge
        focus: true
        c: root.c
        model: root.videos
        selectedRow: root.videos.selectedRow
        fromBeginning: root.videos.filtering
        bottomMargin: metrics.padding + Geometry.displayPadding
        Accessible.name: qsTr("Videos")
        // Qt 6.4's ListView can't create sections of a file that binds its components, so these
        // reach out unbound.
        // qmllint disable unqualified
        section.property: "moduleID"
        section.delegate: SectionCaption {
            required property string section
            width: filter.width
            c: root.c
            leftPadding: 6
            bottomPadding: 2
            text: root.videos.caption(section)
            font: Type.listCaption
            wrapMode: Text.Wrap
        }
        delegate: VideoRow {
            width: filter.width
            c: root.c
            onClicked: root.videos.open(index)
            onWalked: event => list.walk(index, event)
        }
        // qmllint enable unqualified
    }
}
