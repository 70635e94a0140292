pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Halvorin.Kit

/*! The menu of the interface zoom. */
CNMenu {
    id: root

    title: qsTr("&View")

    T.Action {
        text: qsTr("Zoom In")
        shortcut: "Ctrl++"
        onTriggered: ZoomControl.zoomIn()
    }
    T.Action {
        text: qsTr("Zoom Out")
        shortcut: "Ctrl+-"
        onTriggered: ZoomControl.zoomOut()
    }
    T.Action {
        text: qsTr("Actual Size (100%)")
        shortcut: "Ctrl+0"
        onTriggered: ZoomControl.actualSize()
    }
    CNMenu {
        id: levels
        title: qsTr("Zoom Level")

        Instantiator {
            model: ZoomControl.levelTitles
            delegate: CNMenuItem {
                required property string modelData
                required property int index
                text: modelData
                onTriggered: ZoomControl.chooseLevel(index)
            }
            onObjectAdded: (index, object) => levels.insertItem(index, object)
            onObjectRemoved: (index, object) => levels.removeItem(object)
        }
    }
    CNMenuSeparator {}
}
