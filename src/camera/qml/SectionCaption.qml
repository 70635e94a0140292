import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! The small heading over a part of a screen. */
HvText {
    id: root

    required property hvColors c

    topPadding: 8
    font: CNUI.cnFont(10.5, Font.ExtraBold, 1.2)
    color: root.c.oledDim
    Accessible.role: Accessible.Heading
}
