import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! A slim bar: how many of something are done. The caller gives its width and height, and says in
    words what it shows. */
ContinuousRectangle {
    id: root

    required property int done
    required property int total
    required property hvColors c

    radius: height / 2
    fillFrom: Qt.alpha(root.c.glow, 0.12)

    ContinuousRectangle {
        visible: width > 0
        width: root.total > 0 ? parent.width * Math.min(1, root.done / root.total) : 0
        height: parent.height
        radius: root.radius
        fillFrom: root.c.glow
    }
}
