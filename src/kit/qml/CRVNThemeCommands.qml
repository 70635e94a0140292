pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Halvorin.Kit

/*! The menu in which a theme is chosen. */
CNMenu {
    id: root

    title: qsTr("&Theme")

    ThemeList {
        id: themes
    }
    Instantiator {
        model: themes
        delegate: CNMenuItem {
            required property string name
            required property string themeID
            required property bool themeChecked

            title: name
            checkable: true
            checked: themeChecked
            onTriggered: {
                themes.choose(themeID);
                // The press has checked this row; what counts is the preference.
                checked = Qt.binding(() => themeChecked);
            }
        }
        onObjectAdded: (index, object) => root.insertItem(index, object)
        onObjectRemoved: (index, object) => root.removeItem(object)
    }
}
