import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Shell

/*! A module on Campus: what it is about and how far it has been read. */
CardButton {
    id: root

    required property string moduleID
    required property string level
    required property string title
    required property string summary
    required property int doneIn
    required property int lessonsIn

    padding: 12
    // Joined, because a "%2" in a title would be filled in by the next arg().
    label: root.title + ". " + root.level + ". " + qsTr("%1 of %2 lessons finished").arg(root.doneIn).arg(root.lessonsIn)
    onClicked: AppModel.openModule(root.moduleID)

    Column {
        width: parent.width
        height: Math.max(implicitHeight, 118)
        spacing: 6

        Item {
            width: parent.width
            height: Math.max(tag.implicitHeight, count.implicitHeight)
            Tag {
                id: tag
                anchors.verticalCenter: parent.verticalCenter
                text: root.level
                color: CameraPalette.levelColor(root.level, root.c)
                Accessible.ignored: true
            }
            MuteHvText {
                id: count
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("%1/%2").arg(root.doneIn).arg(root.lessonsIn)
                font: Type.count
                color: root.c.oledDim
            }
        }
        MuteHvText {
            width: parent.width
            text: root.title
            font: Type.cardTitle
            color: root.c.oledText
            wrapMode: Text.Wrap
        }
        MuteHvText {
            width: parent.width
            text: root.summary
            font: Type.summary
            color: root.c.oledDim
            wrapMode: Text.Wrap
        }
        ProgressBar {
            width: parent.width
            height: 4
            c: root.c
            done: root.doneIn
            total: root.lessonsIn
        }
    }
}
