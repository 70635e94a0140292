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
    width: memory.size(metrics.usual).width
    height: memory.size(metrics.usual).height
    minSize: Qt.size(680, 440)
    minimumWidth: metrics.smallest.width
    minimumHeight: metrics.smallest.height

    QtObject {
        id: metrics
        readonly property size smallest: Qt.size(480, 320)
        // What is read magnified needs a larger window, as far as there is room.
        readonly property size usual: Qt.size(Math.min(860 * metrics.zoomAtFirst, Screen.desktopAvailableWidth - 40),
                                              Math.min(600 * metrics.zoomAtFirst, Screen.desktopAvailableHeight - 60))
        property real zoomAtFirst: 1
        Component.onCompleted: metrics.zoomAtFirst = ZoomControl.zoom
    }
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
