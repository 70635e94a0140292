pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Halvorin.Kit
import Halvorin.Shell

/*! The menu that goes to a screen. */
CNMenu {
    id: root

    title: qsTr("&Go")

    ScreenList {
        id: screens
    }
    Instantiator {
        model: screens
        delegate: CNMenuItem {
            id: row

            required property int screen
            required title
            required property string shortcut

            action: T.Action {
                shortcut: row.shortcut
                onTriggered: AppModel.screen = row.screen
            }
        }
        onObjectAdded: (index, object) => root.insertItem(index, object)
        onObjectRemoved: (index, object) => root.removeItem(object)
    }
    CNMenuSeparator {}
    T.Action {
        text: qsTr("Previous Screen")
        shortcut: "Ctrl+["
        onTriggered: AppModel.step(-1)
    }
    T.Action {
        text: qsTr("Next Screen")
        shortcut: "Ctrl+]"
        onTriggered: AppModel.step(1)
    }
    T.Action {
        text: qsTr("Continue the Course")
        shortcut: "Ctrl+K"
        enabled: AppModel.canContinue
        onTriggered: AppModel.continueCourse()
    }
}
