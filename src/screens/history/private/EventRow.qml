import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens

/*! An event on the timeline: a bead on its thread, the year and the title. */
WalkedRow {
    id: root

    required property string year
    required property string title

    QtObject {
        id: metrics
        readonly property real bead: 9
        readonly property real spine: 10
        readonly property real yearWidth: 40
        readonly property real gap: 8
    }

    label: root.year + ", " + root.title
    verticalPadding: 6

    contentItem: Item {
        implicitHeight: Math.max(year.height, words.height)

        ContinuousRectangle {
            id: bead
            x: (metrics.spine - metrics.bead) / 2
            y: (year.height - metrics.bead) / 2
            width: metrics.bead
            height: metrics.bead
            radius: metrics.bead / 2
            fillFrom: root.selected ? root.c.glow : root.c.oledDim
        }
        Rectangle {
            x: (metrics.spine - width) / 2
            y: bead.y + metrics.bead + 2
            width: 1.5
            // To the next bead, or as far as the row goes.
            height: parent.height + root.topPadding + root.bottomPadding - metrics.bead - 4
            color: root.c.thread
        }
        MuteHvText {
            id: year
            x: metrics.spine + metrics.gap
            width: metrics.yearWidth
            text: root.year
            font: Type.dialFigure
            color: root.c.glow
        }
        MuteHvText {
            id: words
            x: year.x + Math.max(metrics.yearWidth, year.implicitWidth) + metrics.gap
            width: parent.width - x
            text: root.title
            font: root.selected ? Type.currentRow : Type.row
            color: root.c.oledText
            wrapMode: Text.Wrap
        }
    }
}
