import QtQuick
import Halvorin.Kit
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
        // The contents reach through the display's padding to its edge.
        readonly property real displayPadding: 10
    }

    CourseReading {
        id: reading
    }
    Item {
        x: -metrics.displayPadding
        y: -metrics.displayPadding
        width: metrics.contentsWidth + metrics.displayPadding
        height: root.height + 2 * metrics.displayPadding
        clip: true
        // Wider than what shows, so that only the corners at the display's edge are round.
        Rectangle {
            width: parent.width + radius
            height: parent.height
            radius: 14
            color: Qt.alpha(root.c.oledCard, 0.6)
        }
    }
    CourseContents {
        width: metrics.contentsWidth
        height: root.height
        c: root.c
    }
    Rectangle {
        x: metrics.contentsWidth
        y: -metrics.displayPadding
        width: 1
        height: root.height + 2 * metrics.displayPadding
        color: Qt.alpha(root.c.glow, 0.15)
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
