import QtQuick
import Halvorin.Camera

/*! The ground of a pane at the left of a screen, which reaches the edges of the display, and the
    rule at its right. */
Item {
    id: root

    required property hvColors c

    Item {
        x: -Geometry.displayPadding
        y: -Geometry.displayPadding
        width: root.width + Geometry.displayPadding
        height: root.height + 2 * Geometry.displayPadding
        clip: true
        // Wider than what shows, so that only the corners at the display's edge are round.
        Rectangle {
            width: parent.width + radius
            height: parent.height
            radius: Geometry.displayRadius
            color: root.c.contents
        }
    }
    Rectangle {
        x: root.width
        y: -Geometry.displayPadding
        width: 1
        height: root.height + 2 * Geometry.displayPadding
        color: root.c.divider
    }
}
