import QtQuick
import Halvorin.Kit

/*! A message with one button that dismisses it, or, with a `cancelTitle`, a question: the button
    accepts it, "cancel" and Escape don't. What can't be undone is `destructive`; the keyboard
    stands on "cancel" then. */
CNSheet {
    id: root

    required property string message
    property string buttonTitle: "OK"
    property string cancelTitle: ""
    property bool destructive: false

    role: Accessible.AlertMessage
    spokenName: root.title + ". " + root.message
    onOpened: (root.destructive ? cancel : accept).forceActiveFocus(Qt.TabFocusReason)

    HvText {
        width: parent.width
        text: root.title
        font: Type.dialogTitle
        wrapMode: Text.Wrap
    }
    HvText {
        width: parent.width
        text: root.message
        font: Type.message
        lineHeight: 1.15
        wrapMode: Text.Wrap
    }
    Item {
        width: parent.width
        height: buttons.height + 6
        Row {
            id: buttons
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            spacing: 10
            CNChromeButton {
                id: cancel
                visible: root.cancelTitle !== ""
                label: root.cancelTitle
                onClicked: root.reject()
            }
            CNChromeButton {
                id: accept
                label: root.buttonTitle
                prominent: true
                fill: root.destructive ? Metal.alarm : CNUI.theme.accent
                onClicked: root.accept()
            }
        }
    }
}
