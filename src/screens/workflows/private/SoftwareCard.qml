import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens

/*! A program: what it is for, who makes it and where to read more. */
OLEDCard {
    id: root

    required property string softwareID
    required property string name
    required property string makerLine
    required property string body
    required property string address
    required property string host
    required property bool found

    Column {
        width: parent.width
        spacing: 5

        HvText {
            width: parent.width
            text: root.name
            font: Type.cardTitle
            color: root.found ? root.c.glow : root.c.oledText
            wrapMode: Text.Wrap
            Accessible.role: Accessible.Heading
        }
        HvText {
            width: parent.width
            text: root.makerLine
            font: Type.detail
            color: root.c.oledDim
            wrapMode: Text.Wrap
        }
        RichText {
            width: parent.width
            c: root.c
            text: root.body
            title: root.name
            size: 12.5
        }
        WebButton {
            width: Math.min(implicitWidth, parent.width)
            visible: root.address !== ""
            c: root.c
            label: qsTr("Visit %1's page").arg(root.name)
            address: root.address
            host: root.host
        }
    }
}
