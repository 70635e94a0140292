import QtQuick
import Halvorin.Kit

/*! The window of the help. */
CNWindow {
    id: root

    function showTopic(topicID: string): void {
        viewer.showTopic(topicID);
    }

    title: qsTr("%1 Help").arg(CNUI.appName)
    placed: memory.placed
    width: memory.size(Qt.size(860, 600)).width
    height: memory.size(Qt.size(860, 600)).height
    minSize: Qt.size(680, 440)
    minimumWidth: 480
    minimumHeight: 320

    FrameMemory {
        id: memory
        name: "CRVNHelpWindow"
        window: root
    }
    CRVNHelpViewer {
        id: viewer
        anchors.fill: parent
        focus: true
    }
    Shortcut {
        sequences: ["Ctrl+F", "/"]
        onActivated: viewer.focusSearch()
    }
}
