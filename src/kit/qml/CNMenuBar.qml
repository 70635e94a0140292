import QtQuick
import QtQuick.Templates as T
import Halvorin.Kit

/*! The menu bar at the top of a window. */
T.MenuBar {
    id: root

    implicitWidth: contentItem.implicitWidth + leftPadding + rightPadding
    implicitHeight: 28
    leftPadding: 8
    rightPadding: 8

    delegate: T.MenuBarItem {
        id: item

        implicitWidth: title.implicitWidth + 20
        implicitHeight: 28
        Accessible.role: Accessible.MenuItem
        Accessible.name: title.text
        Accessible.onPressAction: item.triggered()

        contentItem: MuteHvText {
            id: title
            text: Words.withoutMnemonic(item.text)
            font: Type.menuTitle
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
        }
        background: Rectangle {
            visible: item.highlighted || item.hovered
            color: Qt.alpha(CNUI.theme.text, 0.1)
            radius: 6
            anchors.fill: parent
            anchors.topMargin: 3
            anchors.bottomMargin: 3
        }
    }
    contentItem: Row {
        Repeater {
            model: root.contentModel
        }
    }
    background: Rectangle {
        color: Qt.darker(CNUI.theme.bg, 1.15)
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: Qt.alpha(CNUI.theme.text, 0.08)
        }
    }
}
