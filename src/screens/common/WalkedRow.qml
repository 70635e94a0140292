import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! A row of a WalkedList. */
Pressable {
    id: root

    required property hvColors c
    required property int index
    required property bool selected

    /*! A key was pressed that may mean another row. */
    signal walked(event: var)

    horizontalPadding: 6
    verticalPadding: 4
    cornerRadius: 8
    focusInk: root.c.glow
    // The whole list is one stop of the Tab key. What has the focus can't give it up.
    focusPolicy: ListView.isCurrentItem || root.activeFocus ? Qt.StrongFocus : Qt.ClickFocus
    // Over its neighbors, which would cover the ring around what has the focus.
    z: root.activeFocus ? 1 : 0
    Accessible.selectable: true
    Accessible.selected: root.selected
    Keys.onPressed: event => root.walked(event)

    background: ContinuousRectangle {
        visible: root.selected || root.hovered
        radius: root.cornerRadius
        fillFrom: root.selected ? root.c.quiet : root.c.hover
    }
}
