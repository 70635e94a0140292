import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! A button of the grip rail; the selected one is lit from within. */
Pressable {
    id: root

    required property hvColors c
    property bool selected: false
    property string symbol: ""

    QtObject {
        id: metrics
        readonly property color ink: root.selected || root.hovered ? root.c.oledText : root.c.engrave
        readonly property finish finish: root.hovered ? Metal.keyUnderPointer : Metal.key
        readonly property size mark: Qt.size(20, 18)
    }

    // The button itself has to be checkable: the template writes over what stands in Accessible.
    // That it can be checked, Qt 6.4 tells only if it stands there as well.
    checkable: true
    autoExclusive: true
    checked: root.selected
    Accessible.checkable: true
    Accessible.onToggleAction: root.clicked()

    focusPolicy: Qt.TabFocus // a click leaves the keyboard to the display
    horizontalPadding: 12
    verticalPadding: 9
    cornerRadius: Geometry.buttonRadius
    focusInk: root.c.glow
    scale: root.down ? 0.97 : 1

    contentItem: Item {
        implicitWidth: words.x + words.implicitWidth
        implicitHeight: Math.max(metrics.mark.height, words.implicitHeight)
        Symbol {
            x: (metrics.mark.width - width) / 2
            anchors.verticalCenter: parent.verticalCenter
            name: root.symbol
            pointSize: 14
            weight: Font.DemiBold
            ink: metrics.ink
        }
        MuteHvText {
            id: words
            x: metrics.mark.width + 8
            // The longest title may use some of the padding.
            width: parent.width - x + root.rightPadding - 4
            anchors.verticalCenter: parent.verticalCenter
            text: root.label
            color: metrics.ink
            font: Type.button
            elide: Text.ElideRight
        }
    }
    background: Item {
        SoftShadow {
            anchors.fill: parent
            anchors.topMargin: root.selected ? 0 : 2
            color: root.selected ? root.c.haloRaised : Metal.keyShadow
            radius: root.cornerRadius
            blur: root.selected ? 9 : 5
        }
        ContinuousRectangle {
            anchors.fill: parent
            radius: root.cornerRadius
            fillFrom: root.selected ? Qt.tint(Metal.ground, root.c.keyTop)
                                    : metrics.finish.top
            fillTo: root.selected ? Qt.tint(Metal.ground, root.c.pilot)
                                  : metrics.finish.bottom
            strokeWidth: 1
            strokeFrom: metrics.finish.edgeTop
            strokeTo: metrics.finish.edgeBottom
        }
    }
}
