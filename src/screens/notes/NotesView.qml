import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens
import Halvorin.Shell

/*! What the user has achieved and kept: progress, bookmarks and all notes. */
ScrollList {
    id: root

    required property hvColors c

    QtObject {
        id: metrics
        readonly property real padding: 22
        readonly property real spacing: 16
        readonly property real cardPadding: 10
    }

    // Tab goes through header and rows in their order, whichever was made first.
    function goFrom(row: int, delta: int): void {
        let next = row + delta;
        while (next >= 0 && next < root.count && !keepsakes.canBeOpened(next))
            next += delta;
        if (next >= root.count) {
            root.goOut(true);
        } else if (next < 0) {
            root.positionViewAtBeginning();
            root.headerItem.lastButton.forceActiveFocus(Qt.BacktabFocusReason);
        } else {
            root.positionViewAtIndex(next, ListView.Contain);
            (root.itemAtIndex(next) as KeepsakeRow)?.takeFocus(delta > 0 ? Qt.TabFocusReason : Qt.BacktabFocusReason);
        }
    }
    function goOut(forward: bool): void {
        const isInside = item => item && (item === root.contentItem || isInside(item.parent));
        let item = root.nextItemInFocusChain(forward);
        while (item !== root && isInside(item))
            item = item.nextItemInFocusChain(forward);
        item.forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason);
    }

    Keys.onTabPressed: root.headerItem.firstButton.forceActiveFocus(Qt.TabFocusReason)

    // Qt 6.4's ListView can't create a header of a file that binds its components, so these reach
    // out unbound.
    // qmllint disable unqualified
    barInk: root.c.glow
    barVisible: CNUI.animated
    model: Keepsakes {
        id: keepsakes
        // A new note must not take the user back to the beginning.
        property real place
        onModelAboutToBeReset: place = root.contentY - root.originY
        onModelReset: Qt.callLater(() => {
            root.forceLayout();
            root.scrollTo(0, root.originY + place);
        })
    }
    header: Column {
        readonly property Item firstButton: writing
        readonly property Item lastButton: exporting

        width: root.width
        topPadding: metrics.padding
        leftPadding: metrics.padding
        spacing: metrics.spacing

        Item {
            width: root.width - 2 * metrics.padding
            height: Math.max(title.height, buttons.height)

            ScreenTitle {
                id: title
                width: parent.width - buttons.width - 18
                c: root.c
                title: qsTr("My Notes & Progress")
                subtitle: CNUI.localized(qsTr("Everything here is saved on this Mac and can always be exported."))
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
                    Keys.onBacktabPressed: root.goOut(false)
                    onClicked: AppModel.newNote("general", "general")
                }
                GlowButtonStyle {
                    id: exporting
                    c: root.c
                    prominent: true
                    symbol: "square.and.arrow.up"
                    label: qsTr("Export")
                    onClicked: AppModel.exportNotes()
                    Keys.onTabPressed: root.goFrom(-1, 1)
                }
            }
        }
        ProgressCard {
            width: root.width - 2 * metrics.padding
            c: root.c
        }
        // The upper end of the card that the rows of the bookmarks go on with.
        CardSlice {
            width: root.width - 2 * metrics.padding
            height: head.height + 2 * metrics.cardPadding - (isLast ? 0 : 6)
            c: root.c
            isFirst: true
            isLast: keepsakes.bookmarkCount === 0

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
                    text: keepsakes.bookmarksCaption
                }
                HvText {
                    width: parent.width
                    visible: keepsakes.bookmarkCount === 0
                    text: qsTr("Use the Bookmark button on any lesson, gear entry, history event or video.")
                    font: Type.row
                    color: root.c.oledDim
                    wrapMode: Text.Wrap
                }
            }
        }
    }
    delegate: KeepsakeRow {
        x: metrics.padding
        width: root.width - 2 * metrics.padding
        c: root.c
        endsCard: index === keepsakes.bookmarkCount - 1
        onChosen: keepsakes.open(index)
        onLeaves: delta => root.goFrom(index, delta)
    }
    footer: Item {
        height: metrics.padding
    }
}
