import QtQuick
import Halvorin.Kit

/*! Text that assistive technology reads out. */
MuteHvText {
    id: root

    Accessible.role: Accessible.StaticText
    Accessible.name: root.text
}
