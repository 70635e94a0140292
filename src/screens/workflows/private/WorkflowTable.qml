pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens

/*! A table of the stages of the work, on film and digitally. */
Column {
    id: root

    required property hvColors c

    QtObject {
        id: metrics
        readonly property real stageWidth: 130
        readonly property real gap: 12
        readonly property real rowPadding: 8
        readonly property real columnWidth: (root.width - metrics.stageWidth - 2 * metrics.gap) / 2
        readonly property real filmX: metrics.stageWidth + metrics.gap
        readonly property real digitalX: metrics.filmX + metrics.columnWidth + metrics.gap
    }

    component Head: Item {
        id: head
        required property string symbol
        required property string words
        width: metrics.columnWidth
        height: name.height
        Symbol {
            id: mark
            anchors.verticalCenter: parent.verticalCenter
            name: head.symbol
            pointSize: 11
            weight: Font.DemiBold
            ink: root.c.oledDim
        }
        HvText {
            id: name
            x: mark.width + 6
            text: head.words
            font: Type.columnHead
            color: root.c.oledDim
        }
    }

    Item {
        width: parent.width
        height: stageHead.height + metrics.rowPadding
        HvText {
            id: stageHead
            text: qsTr("STAGE")
            font: Type.columnHead
            color: root.c.oledDim
        }
        Head {
            x: metrics.filmX
            symbol: "film"
            words: qsTr("FILM")
        }
        Head {
            x: metrics.digitalX
            symbol: "sdcard"
            words: qsTr("DIGITAL")
        }
    }
    Repeater {
        model: WorkflowSteps {}
        delegate: Item {
            id: step

            required property string stage
            required property string film
            required property string digital

            width: root.width
            height: Math.max(stage.height, film.height, digital.height) + 2 * metrics.rowPadding + 1

            Rectangle {
                width: parent.width
                height: 1
                color: root.c.divider
            }
            HvText {
                id: stage
                y: 1 + metrics.rowPadding
                width: metrics.stageWidth
                text: step.stage
                font: Type.text
                color: root.c.glow
                wrapMode: Text.Wrap
            }
            HvText {
                id: film
                x: metrics.filmX
                y: stage.y
                width: metrics.columnWidth
                text: step.film
                font: Type.text
                color: root.c.oledText
                wrapMode: Text.Wrap
            }
            HvText {
                id: digital
                x: metrics.digitalX
                y: stage.y
                width: metrics.columnWidth
                text: step.digital
                font: Type.text
                color: root.c.oledText
                wrapMode: Text.Wrap
            }
        }
    }
}
