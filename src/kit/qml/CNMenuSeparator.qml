import QtQuick
import QtQuick.Templates as T
import Halvorin.Kit

/*! A line between groups of a menu. */
T.MenuSeparator {
    implicitWidth: 100
    implicitHeight: 9 * ZoomControl.zoom
    contentItem: Item {
        implicitHeight: 9 * ZoomControl.zoom
        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width
            height: 1
            color: Qt.alpha(CNUI.theme.text, 0.14)
        }
    }
}
