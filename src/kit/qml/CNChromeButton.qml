import QtQuick
import Halvorin.Kit

/*! A button of polished metal; the prominent one wears the accent. */
Pressable {
    id: root

    property bool prominent: false
    property bool compact: false

    QtObject {
        id: metrics
        readonly property color top: root.prominent ? Qt.alpha(CNUI.theme.accent, 0.95) : CNUI.gray(0.42)
        readonly property color bottom: root.prominent ? Qt.alpha(CNUI.theme.accent, 0.6) : CNUI.gray(0.16)
    }

    horizontalPadding: root.compact ? 12 : 16
    verticalPadding: root.compact ? 5 : 8
    cornerRadius: height / 2
    opacity: root.down ? 0.75 : 1

    contentItem: MuteHvText {
        text: root.label
        color: "white"
        font: CNUI.cnFont(root.compact ? 11 : 12.5, Font.Bold)
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }
    background: Item {
        SoftShadow {
            anchors.fill: parent
            anchors.topMargin: 2
            anchors.bottomMargin: -2
            color: CNUI.gray(0, 0.4)
            radius: root.cornerRadius
            blur: 4
        }
        ContinuousRectangle {
            anchors.fill: parent
            radius: root.cornerRadius
            fillFrom: root.hovered ? Qt.lighter(metrics.top, 1.12) : metrics.top
            fillTo: root.hovered ? Qt.lighter(metrics.bottom, 1.12) : metrics.bottom
            strokeWidth: 1
            strokeFrom: CNUI.gray(1, 0.55)
            strokeTo: CNUI.gray(0, 0.5)
        }
    }
}
