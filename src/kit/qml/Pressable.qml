import QtQuick
import QtQuick.Templates as T
import Halvorin.Kit

/*! What every button of the program has in common: it answers Space, Return and the mouse, shows
    the focus that came by keyboard, and tells its tip. The look is the caller's. */
T.AbstractButton {
    id: root

    property string tip: ""
    property real cornerRadius: 10
    property color focusInk: CNUI.theme.text

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus

    Accessible.role: Accessible.Button
    Accessible.name: root.text !== "" ? root.text : root.tip
    Accessible.description: root.tip

    ButtonBehavior {
        showsRing: root.visualFocus
        showsTip: root.tip !== "" && (root.hovered || root.visualFocus && root.tip !== root.text)
    }
}
