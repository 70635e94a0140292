import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Diagrams
import Halvorin.Screens

/*! The head of an entry's page: its name, the user's marks, and the drawing in a card. They stand
    side by side where there is room for the name and for every callout of the drawing, and one
    under the other where there isn't. */
Item {
    id: root

    required property hvColors c
    required property GearReading entry

    signal enlargeRequested()

    function focusDrawing(): void {
        card.forceActiveFocus(Qt.OtherFocusReason);
    }

    QtObject {
        id: metrics
        readonly property size drawing: Qt.size(500, 325)
        readonly property real padding: 10
        readonly property real gap: 18
        readonly property real narrowestName: 150
        readonly property real longestWord: root.entry.name.toUpperCase().split(" ").reduce((widest, word) => Math.max(widest, lettering.advanceWidth(word)), 0)
        readonly property real wantedCard: metrics.drawing.width + drawing.calloutReach + 2 * metrics.padding
        readonly property bool sideBySide: root.width - metrics.wantedCard - metrics.gap >= Math.max(metrics.narrowestName, metrics.longestWord)
    }
    FontMetrics {
        id: lettering
        font: Type.title
    }

    implicitHeight: metrics.sideBySide ? Math.max(words.height, card.height) : card.y + card.height

    Column {
        id: words
        width: metrics.sideBySide ? root.width - card.width - metrics.gap : root.width
        spacing: 8

        Tag {
            width: Math.min(implicitWidth, words.width)
            text: root.entry.category
            color: root.c.glow
        }
        ScreenTitle {
            width: parent.width
            c: root.c
            title: root.entry.name
            subtitle: root.entry.alsoCalled
        }
        Flow {
            width: parent.width
            spacing: 8

            GlowButtonStyle {
                c: root.c
                compact: true
                label: root.entry.bookmarked ? qsTr("Bookmarked") : qsTr("Bookmark")
                symbol: root.entry.bookmarked ? "bookmark.fill" : "bookmark"
                onClicked: root.entry.toggleBookmark()
            }
            GlowButtonStyle {
                c: root.c
                compact: true
                label: qsTr("Add note")
                symbol: "square.and.pencil"
                onClicked: root.entry.addNote()
            }
        }
    }
    CardButton {
        id: card
        anchors.right: parent.right
        y: metrics.sideBySide ? 0 : words.height + metrics.gap
        width: metrics.sideBySide ? metrics.wantedCard : root.width
        padding: metrics.padding
        c: root.c
        label: qsTr("Diagram: %1").arg(root.entry.name)
        tip: qsTr("Enlarge the drawing")
        onClicked: root.enlargeRequested()

        DiagramCanvas {
            id: drawing
            width: card.width - 2 * metrics.padding
            height: metrics.drawing.height
            layout: DiagramCanvas.FixedSize
            drawing: metrics.drawing
            kind: root.entry.diagram
            glow: root.c.glow
            label: root.c.oledText
        }
    }
}
