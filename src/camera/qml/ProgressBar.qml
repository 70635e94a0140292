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
    fillFrom: root.c.track

    ContinuousRectangle {
        visible: width > 0
        width: parent.width * Progress.fraction(root.done, root.total)
        height: parent.height
        radius: root.radius
        fillFrom: root.c.glow
    }
}
