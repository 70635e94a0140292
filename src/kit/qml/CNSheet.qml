pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Halvorin.Kit

/*! A panel in the middle of the window, over everything else, which waits for an answer. Its
    content stands in a column. It lives in the window's overlay, outside the magnified interface,
    and so magnifies itself. */
T.Dialog {
    id: root

    property real sheetWidth: 420
    property real sheetPadding: 24
    /*! What it is for assistive technology. */
    property int role: Accessible.Dialog
    property string spokenName: root.title
    /*! How high a column finds room in the window, in points. */
    readonly property real room: ((root.parent?.height ?? 0) - 2 * metrics.distance) / metrics.zoom - 2 * root.sheetPadding
    default property alias content: column.data

    QtObject {
        id: metrics
        readonly property real zoom: ZoomControl.zoom
        readonly property real distance: 16 // from the window's edges
    }

    parent: T.Overlay.overlay
    anchors.centerIn: parent
    width: Math.min(root.sheetWidth * metrics.zoom, parent ? parent.width - 2 * metrics.distance : 0)
    height: panel.height * metrics.zoom
    modal: true
    focus: true
    padding: 0
    spacing: 12
    closePolicy: T.Popup.CloseOnEscape

    contentItem: Item {
        Accessible.role: root.role
        Accessible.name: root.spokenName

        Item {
            id: panel
            width: root.width / metrics.zoom
            height: column.implicitHeight + 2 * root.sheetPadding
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
                padding: root.sheetPadding

                Column {
                    id: column
                    width: parent.width
                    spacing: root.spacing
                }
            }
        }
    }
    background: null
    T.Overlay.modal: Rectangle {
        color: Metal.veil
    }
}
