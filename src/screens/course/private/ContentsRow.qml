import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! A line of the contents: a symbol and a title that wraps. */
Pressable {
    id: root

    required property hvColors c
    property string symbol: ""
    property real symbolSize: 11
    property color symbolInk: root.c.oledDim
    property color ink: root.c.oledText
    property font lettering: Type.row

    /*! Clicked by mouse or finger. Who clicks by key has the focus here and goes on in the list. */
    signal pointed()

    QtObject {
        id: metrics
        readonly property real markWidth: 16
        readonly property real gap: 5
    }

    focusPolicy: Qt.TabFocus
    onClicked: if (!root.activeFocus) root.pointed()
    cornerRadius: 6
    focusInk: root.c.glow

    contentItem: Item {
        implicitHeight: words.implicitHeight
        Item {
            width: metrics.markWidth
            height: firstLine.height
            Symbol {
                anchors.centerIn: parent
                name: root.symbol
                pointSize: root.symbolSize
                weight: Math.max(Font.DemiBold, root.lettering.weight)
                ink: root.symbolInk
            }
        }
        TextMetrics {
            id: firstLine
            font: words.font
            text: "X"
        }
        MuteHvText {
            id: words
            x: metrics.markWidth + metrics.gap
            width: parent.width - x
            text: root.label
            font: root.lettering
            color: root.ink
            wrapMode: Text.Wrap
        }
    }
    background: ContinuousRectangle {
        visible: root.hovered
        x: root.leftPadding - 6
        width: root.width - x
        height: root.height
        radius: 6
        fillFrom: root.c.hover
    }
}
