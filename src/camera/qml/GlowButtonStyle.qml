import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! A button on the display: lit when prominent, otherwise only its outline and words glow. */
Pressable {
    id: root

    required property hvColors c
    property bool prominent: false
    property bool compact: false
    property string symbol: ""
    /*! Where the words stand in a button that is wider than they are. */
    property int alignment: Text.AlignLeft

    QtObject {
        id: metrics
        readonly property color ink: root.prominent ? "black" : root.c.glow
        readonly property font lettering: root.compact ? Type.compactButton : Type.button
        readonly property color quiet: root.hovered ? root.c.quietUnderPointer : root.c.quiet
    }

    horizontalPadding: root.compact ? 10 : 14
    verticalPadding: root.compact ? 5 : 7
    spacing: 6
    cornerRadius: Geometry.buttonRadius
    focusInk: root.c.oledText
    opacity: root.down ? 0.7 : root.enabled ? 1 : 0.45

    contentItem: Item {
        implicitWidth: words.implicitWidth + (mark.visible ? mark.width + root.spacing : 0)
        implicitHeight: Math.max(words.implicitHeight, mark.visible ? mark.height : 0)
        Symbol {
            id: mark
            visible: root.symbol !== ""
            anchors.verticalCenter: parent.verticalCenter
            name: root.symbol
            pointSize: metrics.lettering.pointSize
            weight: Font.Bold
            ink: metrics.ink
        }
        MuteHvText {
            id: words
            x: mark.visible ? mark.width + root.spacing : 0
            width: parent.width - x
            anchors.verticalCenter: parent.verticalCenter
            text: root.label
            elide: Text.ElideRight
            horizontalAlignment: root.alignment
            color: metrics.ink
            font: metrics.lettering
        }
    }
    background: Item {
        SoftShadow {
            anchors.fill: parent
            visible: root.prominent
            color: root.hovered ? root.c.haloRaised : root.c.halo
            radius: root.cornerRadius
            blur: 8
        }
        ContinuousRectangle {
            anchors.fill: parent
            radius: root.cornerRadius
            fillFrom: root.prominent ? (root.hovered ? Qt.lighter(root.c.glow, 1.1) : root.c.glow)
                                     : metrics.quiet
            strokeWidth: 1
            strokeFrom: root.c.buttonEdge
        }
    }
}
