import QtQuick
import Halvorin.Kit

/*! The small heading over a group. */
HvText {
    color: CNUI.theme.dim
    font: Type.kitCaption
}
