import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! A button of the grip rail; the selected one is lit from within. */
Pressable {
    id: root

    required property hvColors c
    property bool selected: false
    property string symbol: ""

    QtObject {
        id: metrics
        readonly property color ink: root.selected || root.hovered ? root.c.oledText : root.c.engrave
        readonly property real lift: root.hovered ? 0.06 : 0
        readonly property color ground: CNUI.gray(0.07)
        readonly property size mark: Qt.size(20, 18)
    }

    horizontalPadding: 12
    verticalPadding: 9
    cornerRadius: 10
    focusInk: root.c.glow
    scale: root.down ? 0.97 : 1

    contentItem: Item {
        implicitWidth: words.x + words.implicitWidth
        implicitHeight: Math.max(metrics.mark.height, words.implicitHeight)
        Symbol {
            x: (metrics.mark.width - width) / 2
            anchors.verticalCenter: parent.verticalCenter
            name: root.symbol
            pointSize: 14
            weight: Font.DemiBold
            ink: metrics.ink
        }
        MuteHvText {
            id: words
            x: metrics.mark.width + 8
            // The longest title may use some of the padding.
            width: parent.width - x + root.rightPadding - 4
            anchors.verticalCenter: parent.verticalCenter
            text: root.label
            color: metrics.ink
            font: CNUI.cnFont(12.5, Font.Bold)
            elide: Text.ElideRight
        }
    }
    background: Item {
        SoftShadow {
            anchors.fill: parent
            anchors.topMargin: root.selected ? 0 : 2
            color: root.selected ? Qt.alpha(root.c.glow, 0.45) : CNUI.gray(0, 0.5)
            radius: 10
            blur: root.selected ? 9 : 5
        }
        ContinuousRectangle {
            anchors.fill: parent
            radius: 10
            fillFrom: root.selected ? Qt.tint(metrics.ground, Qt.alpha(root.c.accent, 0.95))
                                    : CNUI.gray(0.2 + metrics.lift)
            fillTo: root.selected ? Qt.tint(metrics.ground, Qt.alpha(root.c.accent, 0.55))
                                  : CNUI.gray(0.07 + metrics.lift)
            strokeWidth: 1
            strokeFrom: CNUI.gray(1, 0.3)
            strokeTo: CNUI.gray(0, 0.8)
        }
    }
}
