pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! Small buttons in a grid, each for an item with the roles `itemID` and `title`; the chosen id
    goes out with `chosen`. The columns are alike and fill the width: as many as have room for the
    longest title. Without items it takes no height. */
Grid {
    id: root

    required property var model
    required property hvColors c
    property string symbol: ""

    signal chosen(string itemID)

    QtObject {
        id: metrics
        readonly property real widest: {
            let widest = 0;
            for (let i = 0; i < chips.count; ++i)
                widest = Math.max(widest, chips.itemAt(i)?.implicitWidth ?? 0);
            return widest;
        }
        readonly property real minimumColumnWidth: Math.min(root.width, Math.max(120, metrics.widest))
        // Whole points, so that the edges of all columns are drawn alike.
        readonly property real columnWidth: Math.floor((root.width - (root.columns - 1) * root.spacing) / root.columns)
    }

    spacing: 8
    columns: Math.max(1, Math.floor((root.width + root.spacing) / (metrics.minimumColumnWidth + root.spacing)))
    visible: chips.count > 0

    ArrowKeys {}
    Repeater {
        id: chips
        model: root.model
        delegate: GlowButtonStyle {
            required property string itemID
            required property string title
            width: metrics.columnWidth
            label: title
            symbol: root.symbol
            compact: true
            c: root.c
            onClicked: root.chosen(itemID)
        }
    }
}
