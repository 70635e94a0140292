import QtQuick
import Halvorin.Diagrams

/*! A gear drawing by its id, with a name for assistive reading. */
DiagramCanvas {
    id: root

    Accessible.role: Accessible.Graphic
    Accessible.name: qsTr("Diagram: %1").arg(root.kind.replace(/-/g, " "))
}
