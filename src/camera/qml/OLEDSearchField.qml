import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! A search field in the colors of the display. */
SearchCapsule {
    id: root

    required property hvColors c

    ink: root.c.oledText
    dimInk: root.c.oledDim
    fill: root.c.fieldFill
    rim: root.c.fieldEdge
}
