import QtQuick
import Halvorin.Kit

/*! The help's credits, as far as they fit. */
CRVNThemeRoot {
    CNPanel {
        anchors.fill: parent
        anchors.margins: 16
        padding: 20

        Item {
            anchors.fill: parent
            clip: true

            HelpText {
                width: parent.width
                topicID: "credits"
            }
        }
    }
}
