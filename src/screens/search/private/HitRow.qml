import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! A hit of the search: of what kind it is, its title and the words around what was found. */
Pressable {
    id: root

    required property hvColors c
    required property string kind
    required property string title
    required property string snippet

    QtObject {
        id: metrics
        readonly property real kindWidth: 74
        readonly property real gap: 10
    }

    label: qsTr("%1, %2").arg(root.title).arg(root.kind)
    Accessible.description: root.snippet
    horizontalPadding: 8
    verticalPadding: 7
    cornerRadius: 8
    focusInk: root.c.glow

    contentItem: Item {
        implicitHeight: Math.ceil(words.height)
        Tag {
            y: 1
            text: root.kind
            color: root.c.glow
            Accessible.ignored: true
        }
        Column {
            id: words
            x: metrics.kindWidth + metrics.gap
            width: parent.width - x
            spacing: 2
            MuteHvText {
                width: parent.width
                text: root.title
                font: Type.hitTitle
                color: root.c.oledText
                wrapMode: Text.Wrap
            }
            MuteHvText {
                width: parent.width
                visible: root.snippet !== ""
                text: root.snippet
                font: Type.summary
                color: root.c.oledDim
                wrapMode: Text.Wrap
            }
        }
    }
    background: Item {
        ContinuousRectangle {
            anchors.fill: parent
            visible: root.hovered || root.down
            radius: root.cornerRadius
            fillFrom: root.down ? root.c.quiet : root.c.hover
        }
        Rectangle {
            x: root.leftPadding
            y: parent.height
            width: parent.width - root.leftPadding - root.rightPadding
            height: 1
            color: root.c.divider
        }
    }
}
