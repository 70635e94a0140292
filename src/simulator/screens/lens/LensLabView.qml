import QtQuick
import Halvorin.Camera
import Halvorin.Screens
import Halvorin.Simulator

/*! The Lens Lab: what a faster lens buys, in figures and in pictures. */
HVScroll {
    id: root

    LensComparison {
        id: comparison
    }
    Column {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, 1100)
        spacing: root.spacing

        ScreenTitle {
            width: parent.width
            c: root.c
            title: qsTr("Lens Lab")
            subtitle: qsTr("Fast lenses vs a kit lens. Same focal length, same distances, same light: only the f-number changes.")
        }
        ComparisonControls {
            width: parent.width
            c: root.c
            comparison: comparison
        }
        ComparisonTable {
            width: parent.width
            c: root.c
            comparison: comparison
        }
        ThumbnailRow {
            width: parent.width
            c: root.c
            comparison: comparison
        }
        RichText {
            width: Math.min(parent.width, 860)
            c: root.c
            text: comparison.note
            title: qsTr("Reading the table")
        }
    }
}
