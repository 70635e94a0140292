pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens
import Halvorin.Shell
import Halvorin.Window

/*! The whole interface: a medium-format camera seen from the back, the current screen on its
    display. */
FocusScope {
    id: root

    readonly property hvColors c: CameraPalette.current

    function focusSearch(): void {
        plate.focusSearch();
    }

    /*! Reads what else may be shown, so that nobody waits for it at the first visit. */
    function readAhead(): void {
        for (const screen of ["CourseView", "GlobalResults"])
            ahead.components.push(Qt.createComponent(`../Screens/${screen}.qml`, Component.Asynchronous));
    }

    QtObject {
        id: ahead
        property list<Component> components // What nothing holds may be forgotten.
    }
    QtObject {
        id: metrics
        readonly property real margin: 14
        readonly property real sideInset: 22
        readonly property real topInset: 18
        readonly property real plateGap: 14
        readonly property real columnGap: 12
        // The glass hides the body behind it; its round corners don't. They ease over 1.6 times
        // their radius of 28.
        readonly property real displayCorner: 45
    }

    SoftShadow {
        anchors.fill: body
        anchors.topMargin: 12
        anchors.bottomMargin: -12
        radius: 46
        blur: 16
        color: CNUI.gray(0, 0.65)
    }
    CameraBodyBackground {
        id: body
        anchors.fill: parent
        anchors.margins: metrics.margin
        c: root.c
        display: Qt.rect(metrics.sideInset + display.x, metrics.topInset + display.y + metrics.displayCorner,
                         display.width, display.height - 2 * metrics.displayCorner)
    }
    Item {
        anchors.fill: body
        anchors.leftMargin: metrics.sideInset
        anchors.rightMargin: metrics.sideInset
        anchors.topMargin: metrics.topInset
        anchors.bottomMargin: metrics.topInset

        TopPlate {
            id: plate
            width: parent.width
            c: root.c
        }
        GripRail {
            id: rail
            anchors.top: display.top
            anchors.bottom: display.bottom
            c: root.c
        }
        OLEDScreen {
            id: display
            anchors {
                left: rail.right
                leftMargin: metrics.columnGap
                right: strap.left
                rightMargin: metrics.columnGap
                top: plate.bottom
                topMargin: metrics.plateGap
                bottom: parent.bottom
            }
            c: root.c

            ScreenView {
                anchors.fill: parent
                focus: true
                c: root.c
            }
            // The search's results come and go, the screen under them stays.
            Late {
                anchors.fill: parent
                active: AppModel.showsResults
                c: root.c
                file: "../Screens/GlobalResults.qml"
            }
        }
        StrapSide {
            id: strap
            anchors.right: parent.right
            anchors.top: display.top
            anchors.bottom: display.bottom
            c: root.c
        }
    }
    Loader {
        active: AppModel.hasMessage
        source: "MessageDialog.qml"
    }
    Loader {
        active: AppModel.editsNote
        source: "NoteDialog.qml"
    }
}
