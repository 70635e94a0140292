import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens
import Halvorin.Shell

/*! What stands over the bookmarks and notes: the heading, the progress, and the head of the card
    that the bookmarks go on with. */
Column {
    id: root

    required property hvColors c
    required property string bookmarksCaption
    required property bool hasBookmarks
    readonly property Item firstButton: writing
    readonly property Item lastButton: exporting

    /*! Tab on the last button, or Shift and Tab on the first. */
    signal leaves(forward: bool)

    QtObject {
        id: metrics
        readonly property real cardPadding: 10
    }

    bottomPadding: 0
    spacing: 16

    Item {
        width: root.width - 2 * root.padding
        height: Math.max(title.height, buttons.height)

        ScreenTitle {
            id: title
            width: parent.width - buttons.width - 18
            c: root.c
            title: qsTr("My Notes & Progress")
            subtitle: Words.localized(qsTr("Everything here is saved on this Mac and can always be exported."))
        }
        Row {
            id: buttons
            anchors.right: parent.right
            spacing: 10

            GlowButtonStyle {
                id: writing
                c: root.c
                symbol: "square.and.pencil"
                label: qsTr("New note")
                Keys.onBacktabPressed: root.leaves(false)
                onClicked: AppModel.newNote("general", "general")
            }
            GlowButtonStyle {
                id: exporting
                c: root.c
                prominent: true
                symbol: "square.and.arrow.up"
                label: qsTr("Export")
                onClicked: AppModel.exportNotes()
                Keys.onTabPressed: root.leaves(true)
            }
        }
    }
    ProgressCard {
        width: root.width - 2 * root.padding
        c: root.c
    }
    // The upper end of the card that the rows of the bookmarks go on with.
    CardSlice {
        width: root.width - 2 * root.padding
        height: head.height + 2 * metrics.cardPadding - (isLast ? 0 : 6)
        c: root.c
        isFirst: true
        isLast: !root.hasBookmarks

        Column {
            id: head
            x: metrics.cardPadding
            y: metrics.cardPadding
            width: parent.width - 2 * metrics.cardPadding
            spacing: 6
            SectionCaption {
                c: root.c
                topPadding: 0
                bottomPadding: 3
                text: root.bookmarksCaption
            }
            HvText {
                width: parent.width
                visible: !root.hasBookmarks
                text: qsTr("Use the Bookmark button on any lesson, gear entry, history event or video.")
                font: Type.row
                color: root.c.oledDim
                wrapMode: Text.Wrap
            }
        }
    }
}
