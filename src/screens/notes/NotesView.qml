import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Shell
import Halvorin.Screens

/*! What the user has achieved and kept: progress, bookmarks and all notes. */
ScrollList {
    id: root

    required property hvColors c

    QtObject {
        id: metrics
        readonly property real padding: 22
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
            (root.headerItem as NotesHeader).lastButton.forceActiveFocus(Qt.BacktabFocusReason);
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

    Accessible.role: Accessible.Pane
    Accessible.name: AppModel.screenTitle
    Accessible.focusable: true
    Keys.onTabPressed: (root.headerItem as NotesHeader).firstButton.forceActiveFocus(Qt.TabFocusReason)

    Timer {
        id: back
        interval: 0 // The view takes in the new rows first.
        onTriggered: {
            root.forceLayout();
            root.scrollTo(0, root.originY + keepsakes.place);
        }
    }
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
        onModelReset: back.start()
    }
    header: NotesHeader {
        width: root.width
        c: root.c
        padding: metrics.padding
        bookmarksCaption: keepsakes.bookmarksCaption
        hasBookmarks: keepsakes.bookmarkCount > 0
        onLeaves: forward => forward ? root.goFrom(-1, 1) : root.goOut(false)
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
