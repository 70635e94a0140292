import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Shell

/*! What the search over everything has found; lies over the screen while there is a query. */
FocusScope {
    id: root

    required property hvColors c

    Rectangle {
        anchors.fill: parent
        anchors.margins: -Geometry.displayPadding
        color: Metal.partShadow
        Curtain {
            anchors.fill: parent
        }
    }
    SoftShadow {
        anchors.fill: card
        radius: Geometry.cardRadius
        blur: 20
        color: "black"
    }
    OLEDCard {
        id: card
        anchors.fill: parent
        anchors.margins: 16
        c: root.c

        PlaceholderScreen {
            width: root.width - 52
            height: root.height - 52
            c: root.c
            title: qsTr("Search")
            line: qsTr("Searching everything at once is still being built.")
            symbol: "magnifyingglass"
        }
        GlowButtonStyle {
            x: root.width - 52 - width
            c: root.c
            compact: true
            label: qsTr("Close")
            onClicked: AppModel.globalQuery = ""
        }
    }
    Shortcut {
        sequence: "Esc"
        onActivated: AppModel.globalQuery = ""
    }
}
