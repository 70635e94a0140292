import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens
import Halvorin.Shell

/*! The sheet in which a note is written. It stays open, with the words in it, until they are saved
    or given up. */
Item {
    id: root

    required property hvColors c

    NoteEditing {
        id: editing
        document: words.document
    }
    CNSheet {
        id: sheet

        function save(): void {
            if (editing.save())
                sheet.close();
        }

        title: editing.title
        sheetWidth: 560
        sheetPadding: 22
        visible: true
        onOpened: words.focusField()
        onClosed: AppModel.dismissNote()

        Column {
            width: parent.width
            spacing: 3
            HvText {
                id: heading
                width: parent.width
                text: editing.title
                font: Type.sheetTitle
                Accessible.role: Accessible.Heading
            }
            HvText {
                width: parent.width
                text: editing.target
                font: Type.row
                color: CNUI.theme.dim
                wrapMode: Text.Wrap
            }
        }
        CNTextArea {
            id: words
            readonly property real rest: sheet.room - heading.parent.height - buttons.height - (error.visible ? error.height + sheet.spacing : 0) - 2 * sheet.spacing
            width: parent.width
            height: Math.max(60, Math.min(260, rest))
            text: editing.body
            title: qsTr("Note")
        }
        HvText {
            id: error
            width: parent.width
            visible: editing.error !== ""
            text: editing.error
            font: Type.row
            color: root.c.bad
            wrapMode: Text.Wrap
            Accessible.role: Accessible.AlertMessage
        }
        Item {
            id: buttons
            width: parent.width
            height: save.height + 4
            Row {
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                spacing: 10
                CNChromeButton {
                    label: qsTr("Cancel")
                    tip: qsTr("Close without saving (%1)").arg(Words.shortcutText("Esc"))
                    onClicked: sheet.close()
                }
                CNChromeButton {
                    id: save
                    label: qsTr("Save Note")
                    tip: qsTr("Save Note (%1)").arg(Words.shortcutText("Ctrl+S"))
                    prominent: true
                    onClicked: sheet.save()
                }
            }
        }
        Shortcut {
            sequence: "Ctrl+S"
            enabled: sheet.opened
            onActivated: sheet.save()
        }
    }
}
