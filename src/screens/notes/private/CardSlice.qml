import QtQuick
import Halvorin.Camera

/*! A piece, from edge to edge, of a card that is too long to be made as one. */
Item {
    id: root

    required property hvColors c
    property bool isFirst: false
    property bool isLast: false

    // Its content isn't clipped: a focus ring reaches beyond its row.
    Item {
        anchors.fill: parent
        clip: true

        CardSurface {
            readonly property real beyond: 2 * radius

            y: root.isFirst ? 0 : -beyond
            width: parent.width
            height: parent.height + (root.isFirst ? 0 : beyond) + (root.isLast ? 0 : beyond)
            c: root.c
        }
    }
}
