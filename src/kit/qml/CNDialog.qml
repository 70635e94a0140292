pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Halvorin.Kit

/*! A message in the middle of the window, with one button that dismisses it. It lives in the
    window's overlay, outside the magnified interface, and so magnifies itself. */
T.Dialog {
    id: root

    required property string message
    property string buttonTitle: "OK"

    QtObject {
        id: metrics
        readonly property real zoom: ZoomControl.zoom
        readonly property real width: 420
        readonly property real padding: 24
    }

    parent: T.Overlay.overlay
    anchors.centerIn: parent
    width: Math.min(metrics.width * metrics.zoom, parent ? parent.width - 32 : 0)
    height: panel.height * metrics.zoom
    modal: true
    focus: true
    padding: 0
    closePolicy: T.Popup.CloseOnEscape

    onOpened: dismiss.forceActiveFocus(Qt.TabFocusReason)

    contentItem: Item {
        Accessible.role: Accessible.AlertMessage
        Accessible.name: root.title + ". " + root.message

        Item {
            id: panel
            width: root.width / metrics.zoom
            height: column.implicitHeight + 2 * metrics.padding
            scale: metrics.zoom
            transformOrigin: Item.TopLeft

            SoftShadow {
                anchors.fill: parent
                anchors.topMargin: 8
                radius: 20
                blur: 28
                color: Metal.dialogShadow
            }
            CNPanel {
                anchors.fill: parent
                padding: metrics.padding

                Column {
                    id: column
                    width: parent.width
                    spacing: 12

                    HvText {
                        width: parent.width
                        text: root.title
                        font: Type.dialogTitle
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
                        height: dismiss.height + 6
                        CNChromeButton {
                            id: dismiss
                            anchors.right: parent.right
                            anchors.bottom: parent.bottom
                            label: root.buttonTitle
                            prominent: true
                            onClicked: root.accept()
                        }
                    }
                }
            }
        }
    }
    background: null
    T.Overlay.modal: Rectangle {
        color: Metal.veil
    }
}
