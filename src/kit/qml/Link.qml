import QtQuick
import Halvorin.Kit

/*! Words that lead to a web address. The tip tells which. */
Pressable {
    id: root

    required property string address

    horizontalPadding: 6
    verticalPadding: 3
    cornerRadius: 6
    tip: root.address
    onClicked: CNUI.openAddress(root.address)

    contentItem: MuteHvText {
        text: root.label
        color: CNUI.linkInk
        font: Type.link
    }
    background: Rectangle {
        visible: root.hovered
        anchors.bottom: parent.bottom
        anchors.bottomMargin: root.verticalPadding
        anchors.horizontalCenter: parent.horizontalCenter
        width: root.contentItem.width
        height: 1
        color: CNUI.linkInk
    }
}
