pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Kit
import Halvorin.Camera
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
        for (const component of [...screens.components, results.component, editor.component])
            ahead.components.push(Qt.createComponent(results.fileOf(component), Component.Asynchronous));
    }

    ScreenList {
        id: screens
    }
    QtObject {
        id: ahead
        property list<Component> components // What nothing holds may be forgotten.
    }

    SoftShadow {
        anchors.fill: body
        anchors.topMargin: 12
        anchors.bottomMargin: -12
        radius: Geometry.bodyRadius
        blur: 16
        color: Metal.bodyShadow
    }
    CameraBodyBackground {
        id: body
        anchors.fill: parent
        anchors.margins: Geometry.bodyMargin
        c: root.c
        // The glass hides the body behind it; its round corners don't.
        display: Qt.rect(Geometry.bodySideInset + display.x, Geometry.bodyTopInset + display.y + Geometry.bezelReach,
                         display.width, display.height - 2 * Geometry.bezelReach)
    }
    Item {
        anchors.fill: body
        anchors.leftMargin: Geometry.bodySideInset
        anchors.rightMargin: Geometry.bodySideInset
        anchors.topMargin: Geometry.bodyTopInset
        anchors.bottomMargin: Geometry.bodyTopInset

        TopPlate {
            id: plate
            width: parent.width
            c: root.c
            Keys.onDownPressed: event => {
                event.accepted = AppModel.showsResults;
                if (event.accepted)
                    results.forceActiveFocus(Qt.TabFocusReason);
            }
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
                leftMargin: Geometry.columnGap
                right: strap.left
                rightMargin: Geometry.columnGap
                top: plate.bottom
                topMargin: Geometry.rowGap
                bottom: parent.bottom
            }
            c: root.c

            ScreenView {
                id: screen
                anchors.fill: parent
                focus: true
                c: root.c
            }
            // The search's results come and go, the screen under them stays.
            DisplayLoader {
                id: results
                anchors.fill: parent
                active: AppModel.showsResults
                c: root.c
                component: "Halvorin.Screens.GlobalResults"
                // Whoever was in them goes on in the screen, or up to the field.
                onActiveChanged: if (!results.active && results.focus) screen.focus = true
                Keys.onUpPressed: plate.focusSearch()
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
    DisplayLoader {
        id: editor
        active: AppModel.editsNote
        c: root.c
        component: "Halvorin.Screens.NoteEditor"
    }
}
