import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens

/*! The page of a film: what it is, its player, where else it can be seen, and the user's notes. */
HVScroll {
    id: root

    required property string videoID
    readonly property bool playerHasFocus: stage.activeFocus

    spokenName: video.title
    padding: 22
    spacing: 12
    maximumWidth: metrics.widestStage + 2 * root.padding
    // A new film is seen from its beginning.
    onVideoIDChanged: root.contentY = 0

    QtObject {
        id: metrics
        readonly property real widestStage: 900
    }
    VideoReading {
        id: video
        videoID: root.videoID
    }
    ScreenTitle {
        width: parent.width
        c: root.c
        title: video.title
        subtitle: video.line
    }
    VideoScreen {
        id: stage
        width: parent.width
        height: width * 9 / 16
        c: root.c
        videoID: root.videoID
    }
    Flow {
        width: parent.width
        spacing: 8

        GlowButtonStyle {
            id: way
            c: root.c
            prominent: true
            label: qsTr("Open in YouTube")
            symbol: "arrow.up.right.square"
            onClicked: video.openInYouTube()
            Accessible.role: Accessible.Link
        }
        GlowButtonStyle {
            height: way.height
            c: root.c
            compact: true
            label: video.bookmarked ? qsTr("Bookmarked") : qsTr("Bookmark")
            symbol: video.bookmarked ? "bookmark.fill" : "bookmark"
            onClicked: video.toggleBookmark()
        }
        GlowButtonStyle {
            height: way.height
            c: root.c
            compact: true
            label: qsTr("Add note")
            symbol: "square.and.pencil"
            onClicked: video.addNote()
        }
        GlowButtonStyle {
            width: Math.min(implicitWidth, parent.width)
            height: way.height
            visible: video.moduleTitle !== ""
            c: root.c
            compact: true
            label: qsTr("Go to module: %1").arg(video.moduleTitle)
            onClicked: video.goToModule()
        }
    }
    HvText {
        width: parent.width
        text: qsTr("Videos play from YouTube and belong to their channels. CRVN picked them for their teaching quality; we're not affiliated with the channels.")
        font: Type.detail
        color: root.c.oledDim
        wrapMode: Text.Wrap
    }
    NotesList {
        width: parent.width
        c: root.c
        targetType: "video"
        targetID: video.videoID
    }
}
