pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Halvorin.Kit

/*! The Help menu: the help itself, each of its topics and, as there is no menu of the application's
    own off macOS, what would stand in that. */
CNMenu {
    id: root

    title: qsTr("&Help")

    T.Action {
        text: qsTr("%1 Help").arg(CNUI.appName)
        shortcut: "Ctrl+Shift+/"
        onTriggered: CNUI.showHelp()
    }
    CNMenuSeparator {}
    Instantiator {
        model: HelpTopicList {}
        delegate: CNMenuItem {
            required property string topicID
            required title
            onTriggered: CNUI.showHelp(topicID)
        }
        onObjectAdded: (index, object) => root.insertItem(2 + index, object)
        onObjectRemoved: (index, object) => root.removeItem(object)
    }
    CNMenuSeparator {}
    T.Action {
        text: qsTr("About %1").arg(CNUI.appName)
        onTriggered: CNUI.showAbout()
    }
    T.Action {
        text: qsTr("%1 Website").arg(CNUI.creditName)
        onTriggered: CNUI.openAddress(CNUI.website())
    }
}
