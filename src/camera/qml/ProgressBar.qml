import QtQuick
import Halvorin.Camera

/*! A slim bar: how many of something are done. The caller gives its width and height, and says in
    words what it shows. */
Rectangle {
    id: root

    required property int done
    required property int total
    required property hvColors c

    radius: height / 2
    color: root.c.track

    Rectangle {
        visible: width > 0
        width: parent.width * Progress.fraction(root.done, root.total)
        height: parent.height
        radius: root.radius
        color: root.c.glow
    }
}
