pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens

/*! The stage on which a film plays, or a calm word why it can't. */
FocusScope {
    id: root

    required property hvColors c
    required property string videoID

    QtObject {
        id: metrics
        readonly property real radius: 12
    }

    VideoStage {
        id: stage
        videoID: root.videoID
    }
    Rectangle {
        anchors.fill: parent
        color: "black"
    }
    // A player of its own for each film: with it goes all sound, and whatever the page still does.
    Repeater {
        model: stage.playing
        delegate: Loader {
            id: player

            required property string modelData

            anchors.fill: parent
            focus: true
            onStatusChanged: if (player.status === Loader.Error) stage.fail()
            Component.onCompleted: player.setSource(stage.playerFile(), {
                videoID: player.modelData,
                address: stage.address,
                headers: stage.headers,
                timeout: stage.timeout,
                probeScript: stage.probeScript,
                magnification: Qt.binding(() => ZoomControl.zoom),
                focus: true
            })

            Connections {
                target: player.item
                function onFailedChanged(): void {
                    stage.fail();
                }
                function onLeaving(address: url): void {
                    stage.leave(address);
                }
            }
        }
    }
    Symbol {
        anchors.centerIn: parent
        visible: stage.content === VideoStage.Picture
        name: "play.circle"
        pointSize: 60
        ink: root.c.glow
    }
    StagePanel {
        anchors.centerIn: parent
        width: parent.width
        visible: stage.content === VideoStage.Offline
        c: root.c
        symbol: "wifi.slash"
        symbolSize: 34
        title: qsTr("Needs internet")
        titleFont: Type.sheetTitle
        message: stage.offlineMessage
    }
    StagePanel {
        anchors.centerIn: parent
        width: parent.width
        visible: stage.content === VideoStage.Failure
        c: root.c
        symbol: "exclamationmark.triangle"
        symbolSize: 30
        title: qsTr("The player couldn't load this video here.")
        titleFont: Type.heading
        message: qsTr("It may have been moved, made private, or the channel doesn't allow embedding. Try it on YouTube.")
    }
    // No shader rounds what the web engine draws.
    ContinuousFrame {
        anchors.fill: parent
        radius: metrics.radius
        ground: root.c.oled
        rim: root.c.fieldEdge
        rimWidth: 1
    }
}
