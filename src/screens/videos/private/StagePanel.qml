import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! Stands on the stage while no film can be shown: what is the matter, and what to do. */
Column {
    id: root

    required property hvColors c
    required property string symbol
    required property real symbolSize
    required property string title
    required property font titleFont
    required property string message

    QtObject {
        id: metrics
        readonly property real margin: 24
        readonly property real widestMessage: 420
        readonly property real messageWidth: Math.min(metrics.widestMessage, root.width - 2 * metrics.margin)
    }

    spacing: 10

    Symbol {
        anchors.horizontalCenter: parent.horizontalCenter
        name: root.symbol
        pointSize: root.symbolSize
        weight: Font.Bold
        ink: root.c.warn
    }
    HvText {
        x: metrics.margin
        width: parent.width - 2 * metrics.margin
        text: root.title
        font: root.titleFont
        color: root.c.oledText
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
    }
    HvText {
        x: (parent.width - width) / 2
        width: metrics.messageWidth
        text: root.message
        font: Type.text
        color: root.c.oledDim
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
    }
}
