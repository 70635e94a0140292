import QtQuick
import Halvorin.Kit

/*! The small heading over a group. */
HvText {
    color: CNUI.theme.dim
    font: CNUI.cnFont(10, Font.ExtraBold, 1.1)
}
