pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens
import Halvorin.Shell

/*! The encyclopedia's entries: a search, a choice of category while nothing is searched for, and
    the list of what is left. */
FocusScope {
    id: root

    required property hvColors c
    required property GearList entries

    function typeOn(event: var): void {
        search.typeOn(event);
    }

    QtObject {
        id: metrics
        readonly property real padding: 14
        readonly property real spacing: 10
        readonly property real barRoom: 11 // the scroll bar stands in the padding
    }

    Connections {
        target: root.entries
        function onModelReset() {
            list.beginLater();
        }
    }
    SidePane {
        anchors.fill: parent
        c: root.c
    }
    OLEDSearchField {
        id: search
        x: metrics.padding
        y: metrics.padding
        width: parent.width - 2 * metrics.padding
        c: root.c
        prompt: qsTr("Search gear, e.g. tripod")
        text: AppModel.gearQuery
        outcome: root.entries.outcome
        onEdited: text => AppModel.gearQuery = text
        Keys.onDownPressed: list.focusRow(list.currentIndex)
        Keys.onReturnPressed: root.entries.open(0)
        Keys.onEnterPressed: root.entries.open(0)
    }
    Item {
        id: filter
        x: metrics.padding
        width: search.width
        height: category.implicitHeight
        anchors.top: search.bottom
        anchors.topMargin: metrics.spacing

        GlowPicker {
            id: category
            width: parent.width
            visible: !root.entries.searching
            c: root.c
            title: qsTr("Category")
            model: GearCategories {}
            chosenID: root.entries.category
            onChosen: optionID => root.entries.category = optionID
        }
        HvText {
            x: 6
            anchors.verticalCenter: parent.verticalCenter
            visible: root.entries.searching
            text: root.entries.outcome
            font: Type.summary
            color: root.c.oledDim
        }
    }
    WalkedList {
        id: list
        x: metrics.padding
        width: search.width + metrics.barRoom
        anchors.top: filter.bottom
        anchors.topMargin: metrics.spacing
        anchors.bottom: parent.bottom
        anchors.bottomMargin: -Geometry.displayPadding // rows run under the display's edge
        focus: true
        c: root.c
        model: root.entries
        selectedRow: root.entries.selectedRow
        fromBeginning: root.entries.searching
        bottomMargin: metrics.padding + Geometry.displayPadding
        Accessible.name: qsTr("Gear")
        delegate: GearRow {
            width: search.width
            c: root.c
            onClicked: root.entries.open(index)
            onWalked: event => list.walk(index, event)
        }
    }
}
