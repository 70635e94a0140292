import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! The words of a note, which can be selected and copied. */
TextEdit {
    id: root

    required property hvColors c

    readOnly: true
    selectByMouse: true
    persistentSelection: false
    activeFocusOnTab: false
    textFormat: TextEdit.PlainText
    wrapMode: Words.wrapMode(root.text)
    font: Type.message
    color: root.c.oledText
    selectionColor: root.c.selection
    selectedTextColor: "white"
    onActiveFocusChanged: if (!root.activeFocus) root.deselect()

    Accessible.role: Accessible.StaticText
    Accessible.name: root.text
    Accessible.readOnly: true
    Accessible.multiLine: true
    Accessible.selectableText: true

    ReadingKeys {
        text: root
    }
    HoverHandler {
        cursorShape: Qt.IBeamCursor
    }
}
