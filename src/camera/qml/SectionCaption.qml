import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! The small heading over a part of a screen. */
HvText {
    id: root

    required property hvColors c

    topPadding: 8
    font: Type.sectionCaption
    color: root.c.oledDim
    Accessible.role: Accessible.Heading
}
