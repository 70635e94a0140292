import QtQuick
import QtQuick.Templates as T
import Halvorin.Kit

/*! What can be done to a text: the Edit menu of a window, and the context menu of each text. */
CNMenu {
    id: root

    required property TextEditing editing

    title: qsTr("&Edit")

    T.Action {
        text: qsTr("Undo")
        shortcut: "Ctrl+Z"
        enabled: root.editing.canUndo
        onTriggered: root.editing.undo()
    }
    T.Action {
        text: qsTr("Redo")
        shortcut: "Ctrl+Shift+Z"
        enabled: root.editing.canRedo
        onTriggered: root.editing.redo()
    }
    CNMenuSeparator {}
    T.Action {
        text: qsTr("Cut")
        shortcut: "Ctrl+X"
        enabled: root.editing.canCut
        onTriggered: root.editing.cut()
    }
    T.Action {
        text: qsTr("Copy")
        shortcut: "Ctrl+C"
        enabled: root.editing.canCopy
        onTriggered: root.editing.copy()
    }
    T.Action {
        text: qsTr("Paste")
        shortcut: "Ctrl+V"
        enabled: root.editing.canPaste
        onTriggered: root.editing.paste()
    }
    CNMenuSeparator {}
    T.Action {
        text: qsTr("Select All")
        shortcut: "Ctrl+A"
        enabled: root.editing.canSelectAll
        onTriggered: root.editing.selectAll()
    }
}
