import QtQuick
import Halvorin.Kit

/*! A topic in the list of the help. */
Pressable {
    id: root

    property bool selected: false

    horizontalPadding: 10
    verticalPadding: 7
    cornerRadius: 8
    checkable: true
    autoExclusive: true
    checked: root.selected
    Accessible.checkable: true
    Accessible.onToggleAction: root.clicked()

    contentItem: MuteHvText {
        text: root.label
        font: root.selected ? Type.currentTopic : Type.topic
        color: root.selected ? CNUI.selectionInk : CNUI.theme.text
        wrapMode: Text.Wrap
    }
    background: Rectangle {
        radius: root.cornerRadius
        color: root.selected ? CNUI.selection : Qt.alpha(CNUI.theme.text, root.hovered ? 0.08 : 0)
    }
}
