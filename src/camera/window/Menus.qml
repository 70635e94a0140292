import QtQuick
import QtQuick.Templates as T
import Halvorin.Kit
import Halvorin.Window

/*! The menus of the window, and the keys that go with them. */
Item {
    id: root

    required property T.MenuBar bar
    required property Window window

    Component.onCompleted: {
        for (const menu of [file, go, view, theme])
            root.bar.addMenu(menu);
    }

    CNMenu {
        id: file
        title: qsTr("&File")
        T.Action {
            text: qsTr("Quit")
            shortcut: "Ctrl+Q"
            onTriggered: root.window.close()
        }
    }
    GoMenu {
        id: go
    }
    CNZoomCommands {
        id: view
        T.Action {
            text: root.window.visibility === Window.FullScreen ? qsTr("Leave Full Screen") : qsTr("Full Screen")
            shortcut: "F11"
            onTriggered: root.window.visibility = root.window.visibility === Window.FullScreen ? Window.AutomaticVisibility : Window.FullScreen
        }
    }
    CRVNThemeCommands {
        id: theme
    }
}
