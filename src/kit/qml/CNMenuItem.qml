import QtQuick
import QtQuick.Templates as T
import Halvorin.Kit

/*! A row of a menu, with a check mark if it is checkable and the key that does the same. Words
    that may hold an "&" of their own stand in `title`; in `text` it marks the key of the row. */
T.MenuItem {
    id: root

    property string title: ""
    readonly property string keys: CNUI.shortcutText(root.action?.shortcut ?? "")

    onTitleChanged: root.text = CNUI.withLiteralMarks(root.title)

    implicitWidth: 26 + words.implicitWidth + (keyHint.text !== "" ? keyHint.implicitWidth + 32 : 16) + 14
    implicitHeight: 26
    Accessible.name: words.text

    contentItem: Item {
        Symbol {
            x: 8
            anchors.verticalCenter: parent.verticalCenter
            visible: root.checkable && root.checked
            name: "checkmark"
            pointSize: 10
            weight: Font.Bold
            ink: CNUI.theme.text
        }
        MuteHvText {
            id: words
            x: 26
            anchors.verticalCenter: parent.verticalCenter
            text: CNUI.withoutMnemonic(root.text)
            font: Type.row
            color: CNUI.theme.text
        }
        MuteHvText {
            id: keyHint
            anchors.right: parent.right
            anchors.rightMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            text: root.subMenu ? "" : root.keys
            font: Type.detail
            color: CNUI.theme.dim
        }
    }
    arrow: Symbol {
        x: root.width - width - 8
        anchors.verticalCenter: parent?.verticalCenter
        visible: root.subMenu
        name: "chevron.right"
        pointSize: 9
        weight: Font.Bold
        ink: CNUI.theme.dim
    }
    indicator: null
    background: Rectangle {
        visible: root.highlighted
        radius: 6
        // Not the accent: white on it reads poorly in the lighter themes.
        color: Qt.alpha(CNUI.theme.text, 0.16)
    }
}
