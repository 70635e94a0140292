import QtQuick
import QtQuick.Templates as T
import Halvorin.Kit

/*! A control's tip. It lives in the window's overlay, outside the magnified interface, and so
    magnifies itself. */
T.ToolTip {
    id: root

    required property Pressable control

    readonly property real zoom: ZoomControl.zoom

    text: root.control.tip
    visible: true
    x: parent ? Math.round((parent.width - implicitWidth / root.zoom) / 2) : 0
    y: parent ? parent.height + 6 : 0
    implicitWidth: words.implicitWidth + leftPadding + rightPadding
    implicitHeight: words.implicitHeight + topPadding + bottomPadding
    margins: 6
    horizontalPadding: 10 * root.zoom
    verticalPadding: 6 * root.zoom
    delay: 600
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside

    contentItem: HvText {
        id: words
        text: root.text
        font: CNUI.cnFont(Type.tip.pointSize * root.zoom, Type.tip.weight)
    }
    background: ContinuousRectangle {
        radius: 7 * root.zoom
        fillFrom: CNUI.theme.panelTop
        fillTo: CNUI.theme.panelBottom
        strokeWidth: 1
        strokeFrom: CNUI.theme.rim
    }
}
