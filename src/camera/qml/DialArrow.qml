import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! One of the arrows beside the mode dial. */
Pressable {
    id: root

    required property hvColors c
    required property string symbol

    focusPolicy: Qt.TabFocus // a click leaves the keyboard to the display
    width: 22
    height: 30
    cornerRadius: 8
    focusInk: root.c.glow
    opacity: root.down ? 0.6 : 1

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            name: root.symbol
            pointSize: 11
            weight: Font.ExtraBold
            ink: root.hovered ? root.c.glow : root.c.engrave
        }
    }
}
