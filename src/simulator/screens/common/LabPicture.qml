import QtQuick
import Halvorin.Camera
import Halvorin.Simulator

/*! A photograph of the labs' scene in its frame, 1.6 times as wide as high; dark until it is there.
    It needs a width. */
Item {
    id: root

    required property hvColors c
    property alias photo: photograph.photo
    property alias radius: frame.radius
    /*! What is around the picture. */
    property alias surround: frame.surround

    implicitHeight: width / 1.6

    Rectangle {
        anchors.fill: parent
        visible: photograph.empty
        color: "black"
    }
    Photograph {
        id: photograph
        anchors.fill: parent
    }
    PictureFrame {
        id: frame
        anchors.fill: parent
        c: root.c
        surround: root.c.oled
    }
}
