import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! Vertical scrolling for a screen: a column as high as it wants to be. While pictures are taken
    it shows the top of its content and no bar. */
ScrollSurface {
    id: root

    required property hvColors c
    property real padding: 22
    property real spacing: 16
    property real maximumWidth: Infinity
    default property alias content: column.data

    contentWidth: width
    contentHeight: column.implicitHeight + 2 * root.padding
    barInk: root.c.glow
    barVisible: !CNUI.posing

    Column {
        id: column
        x: root.padding
        y: root.padding
        width: Math.min(root.maximumWidth, root.width) - 2 * root.padding
        spacing: root.spacing
    }
}
