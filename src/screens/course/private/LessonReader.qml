import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens
import Halvorin.Shell

/*! A lesson to be read: its text, the user's marks on it, what belongs to it and the ways on. */
HVScroll {
    id: root

    spokenName: lesson.title

    required property string lessonID

    padding: 26
    spacing: 14
    maximumWidth: 860
    // A new lesson is read from its beginning.
    onLessonIDChanged: root.contentY = 0

    LessonReading {
        id: lesson
        lessonID: root.lessonID
    }
    Item {
        width: parent.width
        height: moduleTitle.implicitHeight
        HvText {
            id: moduleTitle
            width: parent.width - minutes.width - 12
            text: lesson.moduleTitle
            font: Type.sectionCaption
            color: root.c.oledDim
            elide: Text.ElideRight
        }
        HvText {
            id: minutes
            anchors.right: parent.right
            text: qsTr("%1 min read").arg(lesson.minutes)
            font: Type.detail
            color: root.c.oledDim
        }
    }
    ScreenTitle {
        width: parent.width
        c: root.c
        title: lesson.title
        subtitle: ""
    }
    Flow {
        width: parent.width
        spacing: 8

        GlowButtonStyle {
            c: root.c
            compact: true
            prominent: !lesson.finished
            label: lesson.finished ? qsTr("Finished") : qsTr("Mark as finished")
            symbol: lesson.finished ? "checkmark.circle.fill" : "circle"
            tip: qsTr("Record this lesson as finished")
            onClicked: lesson.toggleFinished()
        }
        GlowButtonStyle {
            c: root.c
            compact: true
            label: lesson.bookmarked ? qsTr("Bookmarked") : qsTr("Bookmark")
            symbol: lesson.bookmarked ? "bookmark.fill" : "bookmark"
            onClicked: lesson.toggleBookmark()
        }
        GlowButtonStyle {
            c: root.c
            compact: true
            label: qsTr("Add note")
            symbol: "square.and.pencil"
            onClicked: lesson.addNote()
        }
    }
    RichText {
        width: parent.width
        c: root.c
        text: lesson.body
        title: lesson.title
    }
    SectionCaption {
        c: root.c
        visible: lesson.gear.count > 0
        text: qsTr("IN THE ENCYCLOPEDIA")
    }
    FlowRow {
        width: parent.width
        c: root.c
        model: lesson.gear
        symbol: "books.vertical"
        onChosen: itemID => AppModel.openGear(itemID)
    }
    SectionCaption {
        c: root.c
        visible: lesson.videos.count > 0
        text: qsTr("WATCH")
    }
    FlowRow {
        width: parent.width
        c: root.c
        model: lesson.videos
        symbol: "play.rectangle"
        onChosen: itemID => AppModel.openVideo(itemID)
    }
    NotesList {
        width: parent.width
        c: root.c
        targetType: "lesson"
        targetID: lesson.lessonID
    }
    Item {
        width: parent.width
        height: Math.max(previous.height, next.height) + 10

        GlowButtonStyle {
            id: previous
            anchors.bottom: parent.bottom
            visible: lesson.hasPrevious
            c: root.c
            symbol: "chevron.left"
            label: qsTr("Previous")
            onClicked: lesson.goToPrevious()
        }
        GlowButtonStyle {
            id: next
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            visible: lesson.hasNext
            c: root.c
            prominent: true
            symbol: "chevron.right"
            label: qsTr("Finish & next lesson")
            onClicked: lesson.finishAndGoOn()
        }
    }
}
