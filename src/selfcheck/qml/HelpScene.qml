import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! A help topic on a panel. */
CRVNThemeRoot {
    CNPanel {
        anchors.fill: parent
        anchors.margins: 16

        PlaceholderScreen {
            anchors.fill: parent
            c: CameraPalette.current
            title: qsTr("Help")
            line: qsTr("The help topics are still being written.")
            symbol: "questionmark.circle"
        }
    }
}
