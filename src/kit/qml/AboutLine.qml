import QtQuick
import Halvorin.Kit

/*! A centered line of the About window. */
HvText {
    width: parent?.width ?? 0
    color: CNUI.theme.dim
    horizontalAlignment: Text.AlignHCenter
    wrapMode: Text.Wrap
}
