import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Diagrams
import Halvorin.Screens

/*! An entry in the encyclopedia's list: its drawing, its name and how many examples it has. */
WalkedRow {
    id: root

    required property string name
    required property string category
    required property string diagram
    required property int exampleCount

    QtObject {
        id: metrics
        readonly property size thumbnail: Qt.size(42, 27)
        readonly property real spacing: 8
    }

    label: root.category === "" ? root.name : root.name + ", " + root.category
    tip: overCount.hovered ? qsTr("Example models") : ""
    Accessible.description: qsTr("Example models: %1").arg(root.exampleCount)

    contentItem: Item {
        implicitHeight: Math.max(metrics.thumbnail.height, words.height)

        DiagramCanvas {
            width: metrics.thumbnail.width
            height: metrics.thumbnail.height
            anchors.verticalCenter: parent.verticalCenter
            layout: DiagramCanvas.Thumbnail
            kind: root.diagram
            glow: root.c.glow
        }
        Column {
            id: words
            x: metrics.thumbnail.width + metrics.spacing
            width: count.x - metrics.spacing - x
            anchors.verticalCenter: parent.verticalCenter

            MuteHvText {
                width: parent.width
                text: root.name
                font: root.selected ? Type.selectedRowTitle : Type.rowTitle
                color: root.selected ? root.c.glow : root.c.oledText
                wrapMode: Text.Wrap
                maximumLineCount: 2
                elide: Text.ElideRight
            }
            MuteHvText {
                width: parent.width
                visible: text !== ""
                text: root.category
                font: Type.rowDetail
                color: root.c.oledDim
                elide: Text.ElideRight
            }
        }
        MuteHvText {
            id: count
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: root.exampleCount
            font: Type.scaleFigure
            color: root.c.oledDim

            HoverHandler {
                id: overCount
            }
        }
    }
}
