import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! A row of the comparison. It needs a width, and the places of its columns. */
Item {
    id: root

    required property string label
    required property string light
    required property string shutter
    required property bool shaky
    required property real disc
    required property string blur
    required property string depth
    required property list<real> columns
    required property list<string> heads
    required property hvColors c

    QtObject {
        id: metrics
        readonly property real discFrame: 36
        readonly property string steadiness: root.shaky ? qsTr("shaky") : qsTr("sharp")
    }

    height: 40
    Accessible.role: Accessible.Row
    Accessible.name: `${root.label}. ${root.heads[1]}: ${root.light}. ${root.heads[2]}: ${root.shutter}, ${metrics.steadiness}. ${root.heads[3]}: ${root.blur}. ${root.heads[4]}: ${root.depth}`

    Rectangle {
        width: parent.width
        height: 1
        color: root.c.divider
    }
    MuteHvText {
        anchors.verticalCenter: parent.verticalCenter
        text: root.label
        font: Type.rowFigure
        color: root.c.glow
    }
    MuteHvText {
        x: root.columns[1]
        anchors.verticalCenter: parent.verticalCenter
        text: root.light
        font: Type.text
        color: root.c.oledText
    }
    MuteHvText {
        id: time
        x: root.columns[2]
        anchors.verticalCenter: parent.verticalCenter
        text: root.shutter
        font: Type.text
        color: root.c.oledText
    }
    MuteHvText {
        x: time.x + time.implicitWidth
        anchors.verticalCenter: parent.verticalCenter
        text: "  " + metrics.steadiness
        font: Type.text
        color: root.shaky ? root.c.warn : root.c.good
    }
    Item {
        x: root.columns[3]
        width: metrics.discFrame
        height: parent.height

        ContinuousRectangle {
            anchors.centerIn: parent
            width: root.disc
            height: root.disc
            radius: width / 2
            fillFrom: Qt.alpha(root.c.glow, 0.35)
            strokeWidth: 1
            strokeFrom: root.c.glow
        }
    }
    MuteHvText {
        x: root.columns[3] + metrics.discFrame + 8
        anchors.verticalCenter: parent.verticalCenter
        text: root.blur
        font: Type.text
        color: root.c.oledText
    }
    MuteHvText {
        x: root.columns[4]
        anchors.verticalCenter: parent.verticalCenter
        text: root.depth
        font: Type.text
        color: root.c.oledText
    }
}
