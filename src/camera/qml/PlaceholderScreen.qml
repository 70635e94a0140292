import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! What the display shows where there is nothing to show yet: a title and one calm line. */
Item {
    id: root

    required property string title
    required property string line
    property string symbol: ""
    required property hvColors c

    Column {
        anchors.centerIn: parent
        width: Math.min(root.width - 80, 520)
        spacing: 14

        Item {
            width: parent.width
            height: mark.height + 6
            visible: root.symbol !== ""
            Symbol {
                id: mark
                anchors.horizontalCenter: parent.horizontalCenter
                name: root.symbol
                pointSize: 42
                ink: root.c.titleHalo
            }
        }
        GlowingTitle {
            width: parent.width
            title: root.title
            c: root.c
            horizontalAlignment: Text.AlignHCenter
        }
        HvText {
            width: parent.width
            text: root.line
            color: root.c.oledDim
            font: Type.prose
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }
    }
}
