pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens

/*! The contents of the course: modules that open to show their lessons and their quiz. */
HVScroll {
    id: root

    /*! A lesson or a quiz has been chosen by mouse or finger. */
    signal chosen()

    spokenName: qsTr("Contents")
    padding: 16
    spacing: 4

    CourseOutline {
        id: outline
    }
    Repeater {
        model: outline
        delegate: Column {
            id: moduleRow

            required property string moduleID
            required property string title
            required property bool open
            required property bool quizOpen

            width: parent?.width ?? 0
            spacing: 4

            ContentsRow {
                width: parent.width
                c: root.c
                label: moduleRow.title
                symbol: moduleRow.open ? "chevron.down" : "chevron.right"
                symbolSize: 10
                symbolInk: root.c.glow
                lettering: Type.button
                verticalPadding: 5
                Accessible.description: moduleRow.open ? qsTr("Open") : qsTr("Closed")
                onClicked: outline.toggleModule(moduleRow.moduleID)
            }
            // None or one: the lessons of a closed module don't exist.
            Repeater {
                model: moduleRow.open ? 1 : 0
                delegate: Column {
                    id: lessons
                    width: moduleRow.width
                    spacing: 4
                    Repeater {
                        model: LessonList {
                            moduleID: moduleRow.moduleID
                        }
                        delegate: ContentsRow {
                            required property string lessonID
                            required property string title
                            required property bool finished
                            required property bool current

                            width: lessons.width
                            c: root.c
                            leftPadding: 18
                            verticalPadding: 3
                            label: title
                            lettering: current ? Type.currentRow : Type.row
                            ink: current ? root.c.glow : root.c.oledText
                            symbol: finished ? "checkmark.circle.fill" : "circle"
                            symbolSize: 11
                            symbolInk: finished ? root.c.good : root.c.oledDim
                            Accessible.description: finished ? qsTr("Finished") : ""
                            onClicked: outline.showLesson(lessonID)
                            onPointed: root.chosen()
                        }
                    }
                    ContentsRow {
                        width: lessons.width
                        c: root.c
                        leftPadding: 18
                        verticalPadding: 4
                        label: qsTr("Module quiz")
                        lettering: Type.currentRow
                        ink: moduleRow.quizOpen ? root.c.glow : root.c.warn
                        symbol: "checklist"
                        symbolSize: 12
                        symbolInk: ink
                        onClicked: outline.showQuiz(moduleRow.moduleID)
                        onPointed: root.chosen()
                    }
                }
            }
        }
    }
}
