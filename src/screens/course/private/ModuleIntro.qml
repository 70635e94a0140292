pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens

/*! The introduction of a module: what it is about, its lessons and its quiz. */
HVScroll {
    id: root

    required property string moduleID

    spokenName: module.title

    padding: 24
    spacing: 14

    ModuleReading {
        id: module
        moduleID: root.moduleID
    }
    Tag {
        text: module.level
        color: CameraPalette.levelColor(module.level, root.c)
    }
    ScreenTitle {
        width: parent.width
        c: root.c
        title: module.title
        subtitle: module.summary
    }
    Repeater {
        model: LessonList {
            moduleID: module.moduleID
        }
        delegate: CardButton {
            id: card

            required property string lessonID
            required property int number
            required property string title
            required property int minutes

            width: parent?.width ?? 0
            c: root.c
            // Joined, because a "%3" in a title would be filled in by the next arg().
            label: qsTr("Lesson %1: ").arg(card.number) + card.title + qsTr(", %1 min").arg(card.minutes)
            onClicked: module.showLesson(card.lessonID)

            Item {
                width: parent.width
                height: Math.max(title.implicitHeight, 18)

                MuteHvText {
                    id: number
                    anchors.verticalCenter: parent.verticalCenter
                    text: card.number
                    font: Type.number
                    color: root.c.glow
                }
                MuteHvText {
                    id: title
                    x: 24
                    width: parent.width - x - minutes.width - 12
                    anchors.verticalCenter: parent.verticalCenter
                    text: card.title
                    font: Type.entryTitle
                    color: root.c.oledText
                    wrapMode: Text.Wrap
                }
                MuteHvText {
                    id: minutes
                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    text: qsTr("%1 min").arg(card.minutes)
                    font: Type.detail
                    color: root.c.oledDim
                }
            }
        }
    }
    GlowButtonStyle {
        c: root.c
        prominent: true
        symbol: "checklist"
        label: module.quizTitle
        onClicked: module.showQuiz()
    }
}
