pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens
import Halvorin.Shell

/*! Campus, the start screen: progress, the one next step, and the modules. */
HVScroll {
    id: root

    padding: 22
    spacing: 16

    HomeOverview {
        id: overview
    }

    Item {
        width: parent.width
        height: Math.max(welcome.height, ring.height)

        Column {
            id: welcome
            width: parent.width - ring.width - 18
            spacing: 8

            ScreenTitle {
                width: parent.width
                c: root.c
                title: qsTr("Welcome to campus")
                subtitle: qsTr("A complete photography course: from your first exposure to a working pro's kit and workflow.")
            }
            HvText {
                width: parent.width
                text: qsTr("Work through the modules in order or jump to what you need. The Exposure Lab and Lens Lab let you try every idea with real numbers; the Gear Encyclopedia explains everything a photographer carries.")
                font: Type.prose
                color: root.c.oledDim
                wrapMode: Text.Wrap
            }
            Flow {
                id: ways
                width: parent.width
                topPadding: 4
                spacing: 10

                GlowButtonStyle {
                    width: Math.min(implicitWidth, ways.width)
                    visible: overview.continueTitle !== ""
                    c: root.c
                    prominent: true
                    symbol: "play.fill"
                    label: overview.continueTitle
                    onClicked: AppModel.continueCourse()
                }
                GlowButtonStyle {
                    c: root.c
                    symbol: "camera.aperture"
                    label: qsTr("Exposure Lab")
                    onClicked: AppModel.screen = HVScreen.Exposure
                }
                GlowButtonStyle {
                    c: root.c
                    symbol: "books.vertical"
                    label: qsTr("Encyclopedia")
                    onClicked: AppModel.screen = HVScreen.Gear
                }
            }
        }
        ProgressRing {
            id: ring
            anchors.right: parent.right
            c: root.c
            done: overview.done
            total: overview.total
        }
    }
    HvText {
        topPadding: 6
        text: qsTr("MODULES")
        font: Type.groupCaption
        color: root.c.oledDim
        Accessible.role: Accessible.Heading
    }
    AdaptiveGrid {
        id: modules
        width: parent.width
        minimumColumnWidth: 250
        spacing: 12
        model: overview
        delegate: ModuleCard {
            width: modules.columnWidth // known while its texts are laid out for the first time
            c: root.c
        }
    }
}
