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
        onTriggered: CNZoom.zoomIn()
    }
    T.Action {
        text: qsTr("Zoom Out")
        shortcut: "Ctrl+-"
        onTriggered: CNZoom.zoomOut()
    }
    T.Action {
        text: qsTr("Actual Size (100%)")
        shortcut: "Ctrl+0"
        onTriggered: CNZoom.actualSize()
    }
    CNMenu {
        id: levels
        title: qsTr("Zoom Level")

        Instantiator {
            model: CNZoom.levelTitles
            delegate: CNMenuItem {
                required property string modelData
                required property int index
                text: modelData
                onTriggered: CNZoom.chooseLevel(index)
            }
            onObjectAdded: (index, object) => levels.insertItem(index, object)
            onObjectRemoved: (index, object) => levels.removeItem(object)
        }
    }
    CNMenuSeparator {}
}
