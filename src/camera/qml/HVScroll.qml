import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Shell

/*! Vertical scrolling for a screen: a column as high as it wants to be. While pictures are taken
    it shows the top of its content and no bar. Where it gets the focus, its name is what a screen
    reader says of a screen or a page that has just come. */
ScrollSurface {
    id: root

    required property hvColors c
    property real padding: 22
    property real spacing: 16
    property real maximumWidth: Infinity
    property string spokenName: AppModel.screenTitle
    default property alias content: column.data

    contentWidth: width
    contentHeight: column.implicitHeight + 2 * root.padding
    barInk: root.c.glow
    barVisible: !CNUI.posing
    Accessible.role: Accessible.Pane
    Accessible.name: root.spokenName
    Accessible.focusable: true

    Column {
        id: column
        x: root.padding
        y: root.padding
        width: Math.min(root.maximumWidth, root.width) - 2 * root.padding
        spacing: root.spacing
    }
}
