import QtQuick
import Halvorin.Camera
import Halvorin.Diagrams

/*! A gear drawing with all of its callouts on the display's black. */
Rectangle {
    id: root

    readonly property hvColors c: CameraPalette.current

    color: root.c.oled

    GearDiagramView {
        anchors.fill: parent
        anchors.margins: 20
        layout: DiagramCanvas.Whole
        kind: "tripod"
        glow: root.c.glow
    }
}
