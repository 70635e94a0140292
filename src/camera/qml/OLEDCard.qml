import QtQuick
import Halvorin.Camera

/*! A card on the display. Its height follows its content, its width is given. */
Item {
    id: root

    required property hvColors c
    property real padding: 10
    default property alias content: inner.data

    implicitWidth: inner.childrenRect.width + 2 * root.padding
    implicitHeight: inner.childrenRect.height + 2 * root.padding

    CardSurface {
        anchors.fill: parent
        c: root.c
    }
    Item {
        id: inner
        anchors.fill: parent
        anchors.margins: root.padding
    }
}
