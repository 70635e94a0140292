import QtQuick
import Halvorin.Camera
import Halvorin.Diagrams

/*! A gear drawing on the display's black. */
Rectangle {
    id: root

    readonly property hvColors c: CameraPalette.current

    color: root.c.oled

    GearDiagramView {
        anchors.fill: parent
        anchors.margins: 20
        kind: "tripod"
        glow: root.c.glow
    }
}
