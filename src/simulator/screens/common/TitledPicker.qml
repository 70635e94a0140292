import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! A picker with its title before it. It needs a width. */
Item {
    id: root

    required property string title
    required property var model
    required property string chosenID
    required property hvColors c
    property real widestPicker: Infinity

    signal chosen(string optionID)

    implicitHeight: picker.implicitHeight

    MuteHvText {
        id: words
        anchors.verticalCenter: parent.verticalCenter
        text: root.title
        font: Type.row
        color: root.c.oledDim
    }
    GlowPicker {
        id: picker
        anchors.right: parent.right
        width: Math.min(parent.width - words.implicitWidth - 12, root.widestPicker)
        c: root.c
        title: root.title
        model: root.model
        chosenID: root.chosenID
        onChosen: optionID => root.chosen(optionID)
    }
}
