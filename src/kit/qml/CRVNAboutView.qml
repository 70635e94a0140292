pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Kit

/*! What the About window tells: the application, its version, its own lines, and whose it is. */
FocusScope {
    id: root

    readonly property real padding: 26

    Column {
        anchors.centerIn: parent
        width: root.width - 2 * root.padding
        spacing: 6

        Item {
            width: parent.width
            height: 104
            SoftShadow {
                anchors.fill: icon
                anchors.margins: 8
                anchors.topMargin: 14
                radius: 20
                blur: 12
                color: Metal.keyShadow
            }
            ApplicationIcon {
                id: icon
                anchors.horizontalCenter: parent.horizontalCenter
                width: 96
                height: 96
                Accessible.role: Accessible.Graphic
                Accessible.name: qsTr("Icon of %1").arg(CNUI.appName)
            }
        }
        AboutLine {
            text: CNUI.appName
            font: Type.applicationName
            color: CNUI.theme.text
            Accessible.role: Accessible.Heading
        }
        AboutLine {
            text: CNUI.version
            font: Type.version
        }
        Repeater {
            model: CNUI.aboutLines()
            delegate: AboutLine {
                required property string modelData
                leftPadding: 30
                rightPadding: 30
                text: modelData
                font: Type.row
            }
        }
        AboutLine {
            topPadding: 4
            text: qsTr("by Corvane (CRVN)")
            font: Type.currentTopic
            color: CNUI.theme.text
        }
        Link {
            anchors.horizontalCenter: parent.horizontalCenter
            label: qsTr("%1 Website").arg(CNUI.creditName)
            address: CNUI.website()
            focus: true
        }
        AboutLine {
            topPadding: 4
            text: CNUI.copyrightLine()
            font: Type.smallPrint
        }
    }
}
