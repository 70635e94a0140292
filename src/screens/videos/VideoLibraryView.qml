import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens

/*! The video library: its films on the left, module by module, and on the right the page of one,
    with its player. */
FocusScope {
    id: root

    required property hvColors c

    QtObject {
        id: metrics
        readonly property real paneWidth: 320
    }

    VideoList {
        id: videos
    }
    // Typing anywhere goes on with the filter, but for what is typed into the player's page.
    Keys.onPressed: event => {
        if (!page.playerHasFocus)
            pane.typeOn(event);
    }

    VideoPane {
        id: pane
        focus: true
        width: metrics.paneWidth
        height: root.height
        c: root.c
        videos: videos
    }
    Item {
        anchors.fill: parent
        anchors.leftMargin: metrics.paneWidth + 1

        VideoPage {
            id: page
            anchors.fill: parent
            visible: videos.openID !== ""
            c: root.c
            videoID: videos.openID
        }
        HvText {
            x: page.padding
            y: page.padding
            width: parent.width - 2 * page.padding
            visible: videos.openID === ""
            text: qsTr("No videos match.")
            font: Type.message
            color: root.c.oledDim
            wrapMode: Text.Wrap
        }
    }
}
