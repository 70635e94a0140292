pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Shell
import Halvorin.Window

/*! The program's one window: the menu bar, and the camera under the interface zoom. */
T.ApplicationWindow {
    id: root

    title: CNUI.appName
    width: memory.size(metrics.usual).width
    height: memory.size(metrics.usual).height
    // On a screen that is smaller still the camera scrolls, and nothing of it lies out of reach.
    minimumWidth: Math.min(metrics.smallest.width, memory.room.width)
    minimumHeight: Math.min(metrics.smallest.height, memory.room.height)
    color: CNUI.theme.bg

    QtObject {
        id: metrics
        readonly property size usual: Qt.size(Geometry.usualWindow.width, Geometry.usualWindow.height + root.menuBar.height)
        readonly property size smallest: Qt.size(Geometry.minimumWindow.width, Geometry.minimumWindow.height + root.menuBar.height)
    }
    FrameMemory {
        id: memory
        name: "main"
        window: root
    }

    // Other windows may be open; the camera is the program. A note that is being written doesn't go
    // with it unasked.
    onClosing: close => {
        close.accepted = !AppModel.draftIsUnsaved;
        if (close.accepted)
            Qt.quit();
        else
            question.active = true;
    }

    menuBar: CNMenuBar {
        id: bar
    }

    // Nobody needs the rest before the camera can be seen; the menus alone are a hundred objects.
    onFrameSwapped: if (menus.status === Loader.Null) rest.start()
    Timer {
        id: rest
        interval: 20
        onTriggered: {
            menus.setSource("Menus.qml", { bar: bar, window: root });
            camera.readAhead();
        }
    }
    Loader {
        id: menus
    }

    CRVNThemeRoot {
        anchors.fill: parent

        CNZoomHost {
            anchors.fill: parent
            minSize: Geometry.minimumLayout

            MainWindow {
                id: camera
                anchors.fill: parent
                focus: true
            }
        }
    }
    Loader {
        id: question
        active: false
        source: "UnsavedNoteDialog.qml"
        onLoaded: (item as UnsavedNoteDialog).window = root
    }
    Connections {
        target: question.item
        function onClosed(): void {
            question.active = false;
        }
    }
    Shortcut {
        sequences: ["Ctrl+F", "/"]
        onActivated: camera.focusSearch()
    }
    // Where "+" needs Shift, the key alone is "=".
    Shortcut {
        sequence: "Ctrl+="
        onActivated: ZoomControl.zoomIn()
    }
}
