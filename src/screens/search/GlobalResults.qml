pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens
import Halvorin.Shell

/*! What the search over everything has found, in one list of all kinds; lies over the screen while
    there is a query. The arrow keys go through the hits, and on to what is around at the first. */
FocusScope {
    id: root

    required property hvColors c

    QtObject {
        id: metrics
        readonly property real margin: 16
        readonly property real padding: 10
        readonly property real inset: 8 // Rows have room around their words, to be lit in.
        readonly property real barRoom: 8
        readonly property real ringRoom: 4 // The ring of a row at the edge is whole.
    }

    SearchResults {
        id: results
        onAnswered: {
            list.currentIndex = results.count > 0 ? 0 : -1;
            list.positionViewAtBeginning();
        }
    }

    Rectangle {
        anchors.fill: parent
        anchors.margins: -Geometry.displayPadding
        color: "black"
        Curtain {
            anchors.fill: parent
        }
    }
    SoftShadow {
        anchors.fill: card
        radius: Geometry.cardRadius
        blur: 20
        color: "black"
    }
    OLEDCard {
        id: card
        anchors.fill: parent
        anchors.margins: metrics.margin
        padding: metrics.padding
        // It fills what there is; what is in it follows it.
        implicitWidth: 0
        implicitHeight: 0
        c: root.c

        HvText {
            anchors.verticalCenter: close.verticalCenter
            x: metrics.inset
            width: close.x - x - 16
            text: results.heading
            font: Type.hitTitle
            color: root.c.oledText
            elide: Text.ElideRight
            maximumLineCount: 1
            Accessible.role: Accessible.Heading
        }
        GlowButtonStyle {
            id: close
            x: card.width - 2 * metrics.padding - width
            c: root.c
            compact: true
            label: qsTr("Close")
            tip: qsTr("Close (Esc)")
            onClicked: AppModel.globalQuery = ""
        }
        HvText {
            anchors.top: close.bottom
            anchors.topMargin: 8
            x: metrics.inset
            width: Math.min(420, card.width - 2 * metrics.padding - 2 * x)
            visible: results.findsNothing
            text: qsTr("Nothing found. Try fewer or shorter words, e.g. \"tripod\", \"f/1.8\" becomes \"1.8\", \"Kodak\".")
            font: Type.text
            color: root.c.oledDim
            wrapMode: Text.Wrap
        }
        Item {
            x: -metrics.ringRoom
            y: close.height + 8 - metrics.ringRoom
            width: card.width - 2 * metrics.padding + 2 * metrics.ringRoom
            height: card.height - 2 * metrics.padding - y + metrics.ringRoom
            clip: true

            ListView {
                id: list
                anchors.fill: parent
                anchors.margins: metrics.ringRoom
                spacing: 1
                focus: true
                interactive: false
                boundsBehavior: Flickable.StopAtBounds
                highlightMoveDuration: 0
                keyNavigationEnabled: false
                model: results
                Accessible.role: Accessible.List
                Accessible.name: qsTr("Search results")

                /*! How often the reader has scrolled. */
                property int handMoves: 0

                function go(index: int): bool {
                    if (index < 0 || index >= list.count)
                        return false;
                    // The focus comes first: what becomes current takes it along without a reason, and shows
                    // no ring.
                    list.positionViewAtIndex(index, ListView.Contain);
                    list.itemAtIndex(index)?.forceActiveFocus(Qt.TabFocusReason);
                    list.currentIndex = index;
                    return true;
                }

                delegate: HitRow {
                    id: row
                    required property int index
                    required property string ref

                    width: list.width - metrics.barRoom
                    c: root.c
                    focus: ListView.isCurrentItem
                    // The Tab key stops at the list once.
                    focusPolicy: ListView.isCurrentItem ? Qt.StrongFocus : Qt.ClickFocus
                    onClicked: AppModel.openHit(row.kind, row.ref)
                    Keys.onUpPressed: event => event.accepted = list.go(row.index - 1)
                    Keys.onDownPressed: event => event.accepted = list.go(row.index + 1) || true
                    Keys.onPressed: event => {
                        if (event.key === Qt.Key_Home)
                            event.accepted = list.go(0);
                        else if (event.key === Qt.Key_End)
                            event.accepted = list.go(list.count - 1);
                    }
                }

                ScrollBehavior {}
                T.ScrollBar.vertical: ThinScrollBar {
                    ink: root.c.glow
                    policy: !CNUI.posing && list.contentHeight > list.height ? T.ScrollBar.AsNeeded : T.ScrollBar.AlwaysOff
                }
            }
        }
    }
    Shortcut {
        sequence: "Esc"
        onActivated: AppModel.globalQuery = ""
    }
}
