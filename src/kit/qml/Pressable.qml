pragma ComponentBehavior: Bound

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

    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }
    // Repeaters of one or none: a ring and a tip cost nothing while they aren't there. (A Loader
    // would do, but Qt 6.4's can't create components of a file that binds them.)
    Repeater {
        model: root.visualFocus ? 1 : 0
        delegate: FocusRing {
            cornerRadius: root.cornerRadius
            ink: root.focusInk
        }
    }
    Repeater {
        model: root.tip !== "" && (root.hovered || root.visualFocus && root.tip !== root.text) ? 1 : 0
        delegate: Item {
            id: tipPlace
            anchors.fill: parent
            CNTip {
                parent: tipPlace
                text: root.tip
                visible: true
            }
        }
    }
}
