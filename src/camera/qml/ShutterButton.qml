import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Shell

/*! The shutter: goes on with the course where it was left. */
Pressable {
    id: root

    required property hvColors c

    width: 46
    height: 46
    cornerRadius: 23
    focusInk: root.c.glow
    tip: qsTr("Continue the course where you left off")
    Accessible.name: qsTr("Continue the course")
    onClicked: AppModel.continueCourse()

    background: Item {
        SoftShadow {
            anchors.fill: parent
            anchors.topMargin: 3
            radius: 23
            blur: 7
            color: CNUI.gray(0, 0.6)
        }
        ContinuousRectangle {
            anchors.fill: parent
            radius: 23
            fillFrom: CNUI.gray(root.hovered ? 0.82 : 0.75)
            fillTo: CNUI.gray(0.35)
            strokeWidth: 1
            strokeFrom: CNUI.gray(1, 0.5)
            strokeTo: CNUI.gray(0, 0.5)
        }
        SoftShadow {
            anchors.fill: cap
            radius: 17
            blur: 9
            color: Qt.alpha(root.c.accent, 0.55)
        }
        ContinuousRectangle {
            id: cap
            anchors.centerIn: parent
            width: 34
            height: 34
            scale: root.down ? 0.93 : 1
            radius: 17
            fillFrom: root.hovered ? Qt.lighter(root.c.accent, 1.12) : root.c.accent
            strokeWidth: 1
            strokeFrom: CNUI.gray(1, 0.25)
            strokeTo: CNUI.gray(0, 0.35)
        }
    }
    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            anchors.horizontalCenterOffset: 1
            name: "play.fill"
            pointSize: 12
            weight: Font.Black
            ink: "white"
        }
    }
}
