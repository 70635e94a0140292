import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! One of a question's options: a mark, and words that wrap beside it. */
Pressable {
    id: root

    required property hvColors c
    property bool picked: false
    property string symbol: ""
    property color ink: root.c.oledDim
    /*! What the review says of it, for assistive technology. */
    property string verdict: ""

    signal chosen()
    /*! Return or Enter on what is picked already. */
    signal confirmed()

    QtObject {
        id: metrics
        property bool pressed: false // by the mouse, a finger or Space; Return clicks without
        readonly property real reach: 8 // of the light under the pointer, beyond the words
        readonly property real gap: 8
    }

    verticalPadding: 4
    cornerRadius: 8
    focusInk: root.c.glow

    onPressed: metrics.pressed = true
    onCanceled: metrics.pressed = false
    onClicked: {
        const byReturn = !metrics.pressed;
        metrics.pressed = false;
        if (byReturn && root.picked)
            root.confirmed();
        else
            root.chosen();
    }

    // As in a GripButtonStyle: the template writes over what stands in Accessible.
    checkable: true
    autoExclusive: true
    checked: root.picked
    Accessible.checkable: true
    Accessible.description: root.verdict
    Accessible.onToggleAction: root.chosen()
    Accessible.onPressAction: root.chosen()

    contentItem: Item {
        implicitHeight: words.implicitHeight
        Item {
            width: 15
            height: firstLine.height
            Symbol {
                anchors.centerIn: parent
                name: root.symbol
                pointSize: 13
                weight: Font.DemiBold
                ink: root.ink
            }
        }
        TextMetrics {
            id: firstLine
            font: words.font
            text: "X"
        }
        MuteHvText {
            id: words
            x: 15 + metrics.gap
            width: parent.width - x
            text: root.label
            font: Type.message
            color: root.c.oledText
            lineHeight: 1.1
            wrapMode: Text.Wrap
        }
    }
    background: ContinuousRectangle {
        visible: root.hovered && root.enabled
        x: -metrics.reach
        width: root.width + 2 * metrics.reach
        height: root.height
        radius: root.cornerRadius
        fillFrom: root.c.hover
    }
}
