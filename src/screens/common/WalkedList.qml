import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens

/*! A long list of WalkedRows, of which one is selected. Up, Down, Home, End and the page keys walk
    it, Return opens the row that has the focus; Tab goes past all the others. */
ScrollList {
    id: root

    required property hvColors c
    required property int selectedRow
    /*! Whether new rows are shown from their beginning rather than where the selected one is. */
    property bool fromBeginning: false

    function focusRow(row: int): void {
        if (root.count === 0)
            return;
        root.currentIndex = Math.max(0, Math.min(root.count - 1, row));
        root.positionViewAtIndex(root.currentIndex, ListView.Contain);
        root.currentItem.forceActiveFocus(Qt.TabFocusReason);
    }
    function walk(row: int, event: var): void {
        const page = Math.max(1, Math.floor(root.height / (root.currentItem?.height ?? 40)) - 1);
        const steps = new Map([[Qt.Key_Up, -1], [Qt.Key_Down, 1], [Qt.Key_PageUp, -page], [Qt.Key_PageDown, page],
                               [Qt.Key_Home, -root.count], [Qt.Key_End, root.count]]);
        const step = event.modifiers & ~Qt.KeypadModifier ? undefined : steps.get(event.key);
        event.accepted = step !== undefined;
        if (event.accepted)
            root.focusRow(row + step);
    }
    /*! Shows the selected row, as far from the edges as it can be. Pictures show the beginning. */
    function begin(): void {
        const first = root.fromBeginning || CNUI.posing;
        root.forceLayout();
        root.currentIndex = root.count === 0 ? -1 : Math.max(0, first ? 0 : root.selectedRow);
        root.positionViewAtIndex(root.currentIndex, root.currentIndex === 0 ? ListView.Beginning : ListView.Center);
    }
    function beginLater(): void {
        later.start();
    }

    Component.onCompleted: root.begin()
    onSelectedRowChanged: {
        if (CNUI.posing || root.selectedRow < 0 || root.selectedRow >= root.count)
            return;
        root.currentIndex = root.selectedRow;
        root.positionViewAtIndex(root.selectedRow, ListView.Contain);
    }

    highlightFollowsCurrentItem: false
    spacing: 2
    barInk: root.c.glow
    barVisible: !CNUI.posing
    Accessible.role: Accessible.List
    Keys.onTabPressed: event => event.accepted = root.goOn(true)
    Keys.onBacktabPressed: event => event.accepted = root.goOn(false)

    Timer {
        id: later
        interval: 0 // The view takes in the new rows first.
        onTriggered: root.begin()
    }
}
