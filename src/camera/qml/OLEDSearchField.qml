import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! A search field in the colors of the display. */
SearchCapsule {
    id: root

    required property hvColors c

    ink: root.c.oledText
    dimInk: root.c.oledDim
    fill: Qt.alpha(root.c.oled, 0.45)
    rim: Qt.alpha(root.c.glow, 0.3)
}
