import QtQuick
import QtQuick.Templates as T
import Halvorin.Kit

/*! What every button of the program has in common: it answers Space, Return and the mouse, shows
    the focus that came by keyboard, and tells its tip. The look is the caller's.

    What it says stands in `label`. Its `text` stays empty: the template would take an "&" in it for
    the mark of a key, so that Alt and Space pressed "Workflows & Software". */
T.AbstractButton {
    id: root

    property string label: ""
    property string tip: ""
    property real cornerRadius: 10
    property color focusInk: CNUI.theme.text

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus

    Accessible.role: Accessible.Button
    Accessible.name: root.label !== "" ? root.label : root.tip
    // Qt 6.4 tells nobody that an item is disabled. Who presses it for somebody is told that it has
    // been done, and nothing has.
    Accessible.description: {
        if (!root.enabled)
            return qsTr("Not available now");
        return root.tip === root.Accessible.name ? "" : root.tip;
    }
    Accessible.onPressAction: if (root.enabled) root.clicked()

    ButtonBehavior {
        showsRing: root.visualFocus
        showsTip: root.tip !== "" && (root.hovered || root.visualFocus && root.tip !== root.label)
    }
}
