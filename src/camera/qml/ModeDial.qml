import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Shell

/*! The mode dial with its two arrows: turns through the screens. */
Row {
    id: root

    required property hvColors c

    spacing: 6

    ScreenList {
        id: screens
    }
    DialArrow {
        anchors.verticalCenter: parent.verticalCenter
        c: root.c
        symbol: "chevron.left"
        tip: Words.localized("Previous screen (⌘[)")
        onClicked: AppModel.step(-1)
    }
    Pressable {
        id: dial
        focusPolicy: Qt.TabFocus // a click leaves the keyboard to the display
        width: 58
        height: 58
        cornerRadius: 29
        focusInk: root.c.glow
        tip: qsTr("Mode dial: %1. Click to turn to the next screen.").arg(AppModel.screenTitle)
        Accessible.name: qsTr("Mode dial, %1").arg(AppModel.screenTitle)
        Accessible.description: qsTr("Turns to the next screen") // without the tip's repetition
        onClicked: AppModel.step(1)
        Keys.onUpPressed: AppModel.step(1)
        Keys.onRightPressed: AppModel.step(1)
        Keys.onDownPressed: AppModel.step(-1)
        Keys.onLeftPressed: AppModel.step(-1)

        background: Item {
            SoftShadow {
                anchors.fill: parent
                anchors.margins: 3
                anchors.topMargin: 6
                radius: 29
                blur: 7
                color: Metal.partShadow
            }
            DialFace {
                anchors.fill: parent
                c: root.c
                lit: dial.hovered
                // A whole turn goes through all screens; from one to another the short way round.
                turn: AppModel.screen * 360 / screens.count
                Behavior on turn {
                    enabled: CNUI.animated
                    RotationAnimation {
                        duration: 200
                        direction: RotationAnimation.Shortest
                        easing.type: Easing.InOutQuad
                    }
                }
            }
        }
        contentItem: MuteHvText {
            text: AppModel.screenShortTitle
            color: root.c.glow
            font: Type.dial
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
        }
    }
    DialArrow {
        anchors.verticalCenter: parent.verticalCenter
        c: root.c
        symbol: "chevron.right"
        tip: Words.localized("Next screen (⌘])")
        onClicked: AppModel.step(1)
    }
}
