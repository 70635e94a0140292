import QtQuick
import Halvorin.Kit
import Halvorin.Camera

/*! How much of the course is done, as a ring. */
Item {
    id: root

    required property int done
    required property int total
    required property hvColors c

    implicitWidth: 150
    implicitHeight: 150

    Accessible.role: Accessible.ProgressBar
    Accessible.name: qsTr("%1 of %2 lessons finished").arg(root.done).arg(root.total)

    ProgressArc {
        anchors.fill: parent
        anchors.margins: -Geometry.ringGlow
        c: root.c
        fraction: Progress.fraction(root.done, root.total)
        Behavior on fraction {
            enabled: CNUI.animated
            NumberAnimation { duration: 350; easing.type: Easing.OutCubic }
        }
    }
    Column {
        anchors.centerIn: parent
        spacing: 2
        MuteHvText {
            anchors.horizontalCenter: parent.horizontalCenter
            text: qsTr("%1%").arg(Progress.percent(root.done, root.total))
            font: Type.figure
            color: root.c.oledText
        }
        MuteHvText {
            anchors.horizontalCenter: parent.horizontalCenter
            text: qsTr("%1 of %2 lessons").arg(root.done).arg(root.total)
            font: Type.strongDetail
            color: root.c.oledDim
        }
    }
}
