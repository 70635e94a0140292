import QtQuick
import Halvorin.Kit

/*! The context menu of a text. */
CNEditMenu {
    id: root

    required property Item text

    function openAt(x: real, y: real): void {
        root.popup(x, y);
    }

    editing: TextEditing {
        text: root.text
    }
}
