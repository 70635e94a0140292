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
    Item {
        x: -Geometry.displayPadding
        y: -Geometry.displayPadding
        width: metrics.contentsWidth + Geometry.displayPadding
        height: root.height + 2 * Geometry.displayPadding
        clip: true
        // Wider than what shows, so that only the corners at the display's edge are round.
        Rectangle {
            width: parent.width + radius
            height: parent.height
            radius: Geometry.displayRadius
            color: root.c.contents
        }
    }
    CourseContents {
        width: metrics.contentsWidth
        height: root.height
        c: root.c
        onChosen: pane.forceActiveFocus()
    }
    Rectangle {
        x: metrics.contentsWidth
        y: -Geometry.displayPadding
        width: 1
        height: root.height + 2 * Geometry.displayPadding
        color: root.c.divider
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
