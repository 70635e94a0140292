import QtQuick
import Halvorin.Camera
import Halvorin.Screens

/*! The course: its contents on the left, and on the right a quiz, a lesson or the introduction of
    a module. */
FocusScope {
    id: root

    required property hvColors c

    QtObject {
        id: metrics
        readonly property real contentsWidth: 290
    }

    CourseReading {
        id: reading
    }
    SidePane {
        width: metrics.contentsWidth
        height: root.height
        c: root.c

        CourseContents {
            anchors.fill: parent
            c: root.c
            onChosen: pane.forceActiveFocus()
        }
    }
    Loader {
        id: pane
        focus: true
        anchors.fill: parent
        anchors.leftMargin: metrics.contentsWidth + 1
        sourceComponent: {
            switch (reading.kind) {
            case CourseReading.Quiz: return quiz;
            case CourseReading.Lesson: return lesson;
            default: return introduction;
            }
        }
    }
    // Qt 6.4's Loader can't create components of a file that binds them, so these reach out unbound.
    // qmllint disable unqualified
    Component {
        id: quiz
        QuizView {
            focus: true
            c: root.c
            moduleID: reading.moduleID
        }
    }
    Component {
        id: lesson
        LessonReader {
            focus: true
            c: root.c
            lessonID: reading.lessonID
        }
    }
    Component {
        id: introduction
        ModuleIntro {
            focus: true
            c: root.c
            moduleID: reading.moduleID
        }
    }
}
