import QtQuick
import QtQuick.Templates as T
import Halvorin.Kit

/*! A slim scroll bar that comes forward under the pointer. */
T.ScrollBar {
    id: root

    property color ink: CNUI.theme.text

    implicitWidth: 10
    implicitHeight: 10
    padding: 2
    visible: root.size < 1 && root.policy !== T.ScrollBar.AlwaysOff
    minimumSize: 0.08

    contentItem: ContinuousRectangle {
        implicitWidth: 6
        implicitHeight: 6
        radius: 3
        fillFrom: Qt.alpha(root.ink, root.pressed ? 0.6 : root.hovered ? 0.45 : 0.22)
    }
}
