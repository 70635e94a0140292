pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Halvorin.Kit
import Halvorin.Shell
import Halvorin.Window

/*! The program's one window: the menu bar, and the camera under the interface zoom. */
T.ApplicationWindow {
    id: root

    QtObject {
        id: metrics
        // Sizes of the camera; the menu bar stands above it.
        readonly property size minimum: Qt.size(900, 620)
        readonly property size usual: Qt.size(1440, 920)
        readonly property size design: Qt.size(1240, 800)
    }

    title: CNUI.appName
    width: metrics.usual.width
    height: metrics.usual.height + root.menuBar.height
    minimumWidth: metrics.minimum.width
    minimumHeight: metrics.minimum.height + root.menuBar.height
    color: CNUI.theme.bg

    // Other windows may be open; the camera is the program.
    onClosing: Qt.quit()

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
            minSize: metrics.design

            MainWindow {
                id: camera
                anchors.fill: parent
                focus: true
            }
        }
    }
    Shortcut {
        sequence: "Ctrl+F"
        onActivated: camera.focusSearch()
    }
    // Where "+" needs Shift, the key alone is "=".
    Shortcut {
        sequence: "Ctrl+="
        onActivated: CNZoom.zoomIn()
    }
}
