import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens

/*! A product as an example: what it is for, its figures, and where its maker tells more. */
Column {
    id: root

    required property hvColors c
    required property string name
    required property string use
    required property string specs
    required property string address
    required property string host
    required property string checked

    spacing: 5

    Flow {
        width: parent.width
        spacing: 8

        HvText {
            id: title
            width: Math.min(implicitWidth, parent.width)
            text: root.name
            font: Type.cardTitle
            color: root.c.oledText
            wrapMode: Text.Wrap
        }
        Item {
            width: Math.min(use.implicitWidth, parent.width)
            height: Math.max(firstLine.height, use.height)

            Tag {
                id: use
                width: parent.width
                anchors.verticalCenter: parent.verticalCenter
                text: root.use
                color: root.c.warn
            }
        }
    }
    FontMetrics {
        id: firstLine
        font: title.font
    }
    HvText {
        width: parent.width
        visible: text !== ""
        text: root.specs
        font: Type.text
        color: root.c.oledText
        wrapMode: Text.Wrap
    }
    Flow {
        width: parent.width
        spacing: 8

        WebButton {
            id: link
            visible: root.address !== ""
            c: root.c
            label: qsTr("Maker's page")
            address: root.address
            host: root.host
            Accessible.name: root.name === "" ? link.label : link.label + ", " + root.name
        }
        HvText {
            visible: text !== ""
            height: Math.max(implicitHeight, link.visible ? link.height : 0)
            text: root.checked
            font: Type.smallPrint
            color: root.c.oledDim
            verticalAlignment: Text.AlignVCenter
        }
    }
}
