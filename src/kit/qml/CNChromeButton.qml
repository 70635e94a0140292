import QtQuick
import Halvorin.Kit

/*! A button of polished metal; the prominent one wears the accent, or what is put in its place. */
Pressable {
    id: root

    property bool prominent: false
    property bool compact: false
    property color fill: CNUI.theme.accent

    QtObject {
        id: metrics
        readonly property color top: root.prominent ? Qt.alpha(root.fill, 0.95) : Metal.chrome.top
        readonly property color bottom: root.prominent ? Qt.alpha(root.fill, 0.6) : Metal.chrome.bottom
    }

    horizontalPadding: root.compact ? 12 : 16
    verticalPadding: root.compact ? 5 : 8
    cornerRadius: height / 2
    opacity: root.down ? 0.75 : 1

    contentItem: MuteHvText {
        text: root.label
        color: "white"
        font: root.compact ? Type.compactChrome : Type.button
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }
    background: Item {
        SoftShadow {
            anchors.fill: parent
            anchors.topMargin: 2
            anchors.bottomMargin: -2
            color: Metal.buttonShadow
            radius: root.cornerRadius
            blur: 4
        }
        ContinuousRectangle {
            anchors.fill: parent
            radius: root.cornerRadius
            fillFrom: root.hovered ? Qt.lighter(metrics.top, 1.12) : metrics.top
            fillTo: root.hovered ? Qt.lighter(metrics.bottom, 1.12) : metrics.bottom
            strokeWidth: 1
            strokeFrom: Metal.chrome.edgeTop
            strokeTo: Metal.chrome.edgeBottom
        }
    }
}
