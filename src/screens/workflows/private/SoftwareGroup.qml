pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Camera
import Halvorin.Screens

/*! The programs of a kind, as cards in a grid. */
Column {
    id: root

    required property hvColors c
    required property string kind
    required property string caption

    spacing: 10

    SectionCaption {
        width: parent.width
        c: root.c
        topPadding: 4
        text: root.caption
        wrapMode: Text.Wrap
    }
    AdaptiveGrid {
        width: parent.width
        minimumColumnWidth: 300
        spacing: 12
        model: SoftwareList {
            kind: root.kind
        }
        delegate: SoftwareCard {
            c: root.c
        }
    }
}
