import QtQuick
import QtQuick.Templates as T
import Halvorin.Kit
import Halvorin.Shell
import Halvorin.Window

/*! The menus of the window, and the keys that go with them. */
Item {
    id: root

    required property T.MenuBar bar
    required property T.ApplicationWindow window

    Component.onCompleted: {
        for (const menu of [file, edit, view, go, theme, help])
            root.bar.addMenu(menu);
    }

    CNMenu {
        id: file
        title: qsTr("&File")
        T.Action {
            text: qsTr("New Note")
            shortcut: "Ctrl+N"
            enabled: !AppModel.editsNote
            onTriggered: AppModel.newNote("general", "general")
        }
        T.Action {
            text: qsTr("Export My Notes & Progress…").replace("&", "&&")
            shortcut: "Ctrl+Shift+E"
            enabled: AppModel.hasStore
            onTriggered: AppModel.exportNotes()
        }
        CNMenuSeparator {}
        T.Action {
            text: qsTr("Quit")
            shortcut: "Ctrl+Q"
            onTriggered: root.window.close()
        }
    }
    CNEditMenu {
        id: edit
        editing: TextEditing {
            window: root.window
        }
    }
    CNZoomCommands {
        id: view
        T.Action {
            text: root.window.visibility === Window.FullScreen ? qsTr("Leave Full Screen") : qsTr("Full Screen")
            shortcut: "F11"
            onTriggered: root.window.visibility = root.window.visibility === Window.FullScreen ? Window.AutomaticVisibility : Window.FullScreen
        }
    }
    GoMenu {
        id: go
    }
    CRVNThemeCommands {
        id: theme
    }
    CRVNHelpCommands {
        id: help
    }
    // The menu's own key means the question mark, which not every keyboard has on the slash.
    Shortcut {
        sequence: "F1"
        onActivated: CNUI.showHelp()
    }
}
