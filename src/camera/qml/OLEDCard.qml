import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! A card on the display. Its height follows its content, its width is given. */
Item {
    id: root

    required property hvColors c
    property real padding: 10
    property bool raised: false
    default property alias content: inner.data

    implicitWidth: inner.childrenRect.width + 2 * root.padding
    implicitHeight: inner.childrenRect.height + 2 * root.padding

    ContinuousRectangle {
        anchors.fill: parent
        radius: 16
        fillFrom: root.raised ? Qt.lighter(root.c.oledCard, 1.35) : root.c.oledCard
        strokeWidth: 1
        strokeFrom: Qt.alpha(root.c.glow, root.raised ? 0.4 : 0.16)
    }
    Item {
        id: inner
        anchors.fill: parent
        anchors.margins: root.padding
    }
}
