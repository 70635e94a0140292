import QtQuick
import QtQuick.Templates as T
import Halvorin.Kit

/*! A row of a menu, with a check mark if it is checkable and the key that does the same. Words
    that may hold an "&" of their own stand in `title`; in `text` it marks the key of the row. */
T.MenuItem {
    id: root

    property string title: ""
    readonly property string keys: Words.shortcutText(root.action?.shortcut ?? "")

    QtObject {
        id: metrics
        readonly property real zoom: ZoomControl.zoom
        readonly property real inset: 26 * metrics.zoom
        readonly property real edge: 10 * metrics.zoom
        readonly property real gap: 32 * metrics.zoom
        readonly property real dimming: root.enabled ? 1 : 0.4

        function magnified(lettering: font): font {
            return CNUI.cnFont(lettering.pointSize * metrics.zoom, lettering.weight);
        }
    }

    onTitleChanged: root.text = Words.withLiteralMarks(root.title)

    implicitWidth: metrics.inset + words.implicitWidth + metrics.gap + (keyHint.text !== "" ? keyHint.implicitWidth + metrics.edge : 0)
    implicitHeight: 26 * metrics.zoom
    Accessible.name: words.text
    // Qt 6.4 tells nobody that an item is disabled.
    Accessible.description: root.enabled ? keyHint.text : qsTr("Not available now")
    Accessible.checkable: root.checkable
    Accessible.checked: root.checked
    Accessible.onPressAction: root.action ? root.action.trigger(root) : root.clicked()
    Accessible.onToggleAction: root.action ? root.action.trigger(root) : root.clicked()

    contentItem: Item {
        opacity: metrics.dimming
        Symbol {
            x: 8 * metrics.zoom
            anchors.verticalCenter: parent.verticalCenter
            visible: root.checkable && root.checked
            name: "checkmark"
            pointSize: 10 * metrics.zoom
            weight: Font.Bold
            ink: CNUI.theme.text
        }
        MuteHvText {
            id: words
            x: metrics.inset
            anchors.verticalCenter: parent.verticalCenter
            text: Words.withoutMnemonic(root.text)
            font: metrics.magnified(Type.row)
            color: CNUI.theme.text
        }
        MuteHvText {
            id: keyHint
            anchors.right: parent.right
            anchors.rightMargin: metrics.edge
            anchors.verticalCenter: parent.verticalCenter
            text: root.subMenu ? "" : root.keys
            font: metrics.magnified(Type.detail)
            color: CNUI.theme.dim
        }
    }
    arrow: Symbol {
        x: root.width - width - 8 * metrics.zoom
        anchors.verticalCenter: parent?.verticalCenter
        visible: root.subMenu
        name: "chevron.right"
        pointSize: 9 * metrics.zoom
        weight: Font.Bold
        ink: CNUI.theme.dim
    }
    indicator: null
    background: Rectangle {
        visible: root.highlighted && root.enabled
        radius: 6 * metrics.zoom
        // Not the accent: white on it reads poorly in the lighter themes.
        color: Qt.alpha(CNUI.theme.text, 0.16)
    }
}
