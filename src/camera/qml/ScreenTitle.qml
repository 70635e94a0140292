import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! The heading of a screen, and a quieter line under it. It needs a width. */
Column {
    id: root

    required property string title
    required property string subtitle
    required property hvColors c

    spacing: 3

    GlowingTitle {
        width: root.width
        title: root.title
        c: root.c
    }
    HvText {
        width: root.width
        visible: root.subtitle !== ""
        text: root.subtitle
        font: Type.subtitle
        color: root.c.oledDim
        wrapMode: Text.Wrap
    }
}
