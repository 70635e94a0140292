pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Simulator

/*! The lines of a panel: titles at the left, figures at the right. It needs a width. */
Column {
    id: root

    required property FigureList model
    required property hvColors c

    spacing: 9

    Repeater {
        model: root.model
        delegate: Item {
            id: line

            required property string title
            required property string value

            width: root.width
            height: Math.max(words.implicitHeight, figure.implicitHeight)
            Accessible.role: Accessible.StaticText
            Accessible.name: line.title + ": " + line.value

            MuteHvText {
                id: words
                width: parent.width - figure.implicitWidth - 10
                text: line.title
                font: Type.row
                color: root.c.oledDim
                wrapMode: Text.Wrap
            }
            MuteHvText {
                id: figure
                anchors.right: parent.right
                text: line.value
                font: Type.currentRow
                color: root.c.oledText
            }
        }
    }
}
