import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! A card that can be pressed as a whole. Its content stands in `content`; `label` is its name for
    assistive technology. */
Pressable {
    id: root

    required property hvColors c
    default property alias content: inner.data

    padding: 10
    cornerRadius: Geometry.cardRadius
    focusInk: root.c.glow
    scale: root.down ? 0.99 : 1

    implicitHeight: inner.childrenRect.height + topPadding + bottomPadding

    contentItem: Item {
        id: inner
    }
    background: CardSurface {
        c: root.c
        raised: root.hovered
    }
}
