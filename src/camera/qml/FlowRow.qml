pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Camera

/*! Small buttons in a grid, each for an item with the roles `itemID` and `title`; the chosen id
    goes out with `chosen`. The columns are alike and fill the width: as many as have room for the
    longest title. Without items it takes no height. */
AdaptiveGrid {
    id: root

    required property hvColors c
    property string symbol: ""

    signal chosen(string itemID)

    spacing: 8
    wholePoints: true
    minimumColumnWidth: Math.min(root.width, Math.max(120, root.widestCell))
    visible: root.count > 0

    delegate: GlowButtonStyle {
        required property string itemID
        required property string title
        label: title
        symbol: root.symbol
        compact: true
        c: root.c
        onClicked: root.chosen(itemID)
    }
}
