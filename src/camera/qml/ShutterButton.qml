import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Shell

/*! The shutter: goes on with the course where it was left. */
Pressable {
    id: root

    required property hvColors c

    QtObject {
        id: metrics
        readonly property finish finish: root.hovered ? Metal.shutterUnderPointer : Metal.shutter
    }

    focusPolicy: Qt.TabFocus // a click leaves the keyboard to the display
    width: 46
    height: 46
    cornerRadius: 23
    focusInk: root.c.glow
    tip: qsTr("Continue the course where you left off")
    Accessible.name: qsTr("Continue the course")
    Accessible.description: qsTr("Where you left off") // without the tip's repetition
    onClicked: AppModel.continueCourse()

    background: Item {
        SoftShadow {
            anchors.fill: parent
            anchors.topMargin: 3
            radius: 23
            blur: 7
            color: Metal.partShadow
        }
        ContinuousRectangle {
            anchors.fill: parent
            radius: 23
            fillFrom: metrics.finish.top
            fillTo: metrics.finish.bottom
            strokeWidth: 1
            strokeFrom: metrics.finish.edgeTop
            strokeTo: metrics.finish.edgeBottom
        }
        SoftShadow {
            anchors.fill: cap
            radius: 17
            blur: 9
            color: root.c.pilot
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
            strokeFrom: Metal.cap.edgeTop
            strokeTo: Metal.cap.edgeBottom
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
