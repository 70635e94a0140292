import QtQuick
import QtQuick.Templates as T
import Halvorin.Kit

/*! A slim scroll bar that comes forward under the pointer. */
T.ScrollBar {
    id: root

    property color ink: CNUI.theme.text

    // What assistive technology reads and sets: percents of the way.
    readonly property real minimumValue: 0
    readonly property real maximumValue: 100
    property real value: root.size < 1 ? Math.round(100 * root.position / (1 - root.size)) : 0
    onValueChanged: {
        const now = 100 * root.position / (1 - root.size);
        if (root.size < 1 && Math.abs(root.value - now) >= 1)
            root.position = root.value / 100 * (1 - root.size);
    }
    Accessible.role: Accessible.ScrollBar
    Accessible.name: root.orientation === Qt.Vertical ? qsTr("Vertical scroll bar") : qsTr("Horizontal scroll bar")
    Accessible.onIncreaseAction: root.increase()
    Accessible.onDecreaseAction: root.decrease()

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
