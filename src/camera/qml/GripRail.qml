pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Shell

/*! The rail at the camera's grip: a button for each screen. */
Item {
    id: root

    required property hvColors c

    implicitWidth: Geometry.railWidth

    ContinuousRectangle {
        anchors.fill: parent
        radius: Geometry.railRadius
        fillFrom: Metal.rail.top
        strokeWidth: 1.5
        strokeFrom: Metal.rail.edgeTop
        strokeTo: Metal.rail.edgeBottom
    }
    Column {
        anchors.fill: parent
        anchors.margins: 12
        spacing: 8
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Screens")

        ArrowKeys {}
        Repeater {
            model: ScreenList {}
            delegate: GripButtonStyle {
                required property int screen
                required property string title
                required symbol
                width: parent?.width ?? 0
                c: root.c
                selected: AppModel.screen === screen
                label: title
                tip: title
                onClicked: AppModel.screen = screen
            }
        }
    }
}
