import QtQuick
import Halvorin.Camera

/*! A gear drawing on the display's black. */
Rectangle {
    id: root

    readonly property hvColors c: CameraPalette.current

    color: root.c.oled

    PlaceholderScreen {
        anchors.fill: parent
        anchors.margins: 20
        c: root.c
        title: qsTr("Tripod")
        line: qsTr("This drawing is still being made.")
        symbol: "books.vertical"
    }
}
