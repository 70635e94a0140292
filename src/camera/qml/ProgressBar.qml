import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! A slim bar: how many of something are done. The caller gives its width and height. */
Item {
    id: root

    required property int done
    required property int total
    required property hvColors c

    Accessible.ignored: true

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: Qt.alpha(root.c.glow, 0.12)
    }
    Rectangle {
        visible: width > 0
        width: root.total > 0 ? parent.width * Math.min(1, root.done / root.total) : 0
        height: parent.height
        radius: height / 2
        color: root.c.glow
    }
}
