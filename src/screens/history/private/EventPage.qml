pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens

/*! The page of the event that is open: its time, its story, its sources and the user's notes. */
HVScroll {
    id: root

    spokenName: event.title
    padding: 24
    spacing: 14
    maximumWidth: 860
    visible: event.exists

    EventReading {
        id: event
        // A new event is read from its beginning.
        onEventChanged: root.contentY = 0
    }
    Flow {
        width: parent.width
        spacing: 8

        Tag {
            id: era
            width: Math.min(implicitWidth, parent.width)
            text: event.era
            color: root.c.warn
        }
        HvText {
            width: Math.min(implicitWidth, parent.width)
            height: Math.max(implicitHeight, era.visible ? era.height : 0)
            text: event.dateText
            font: Type.dateline
            color: root.c.glow
            wrapMode: Text.Wrap
            verticalAlignment: Text.AlignVCenter
        }
    }
    ScreenTitle {
        width: parent.width
        c: root.c
        title: event.title
        subtitle: ""
    }
    RichText {
        width: parent.width
        c: root.c
        text: event.body
        title: event.title
    }
    SectionCaption {
        c: root.c
        text: qsTr("SOURCES")
    }
    Column {
        width: parent.width
        spacing: 8
        visible: event.sources.count > 0

        Repeater {
            model: event.sources
            delegate: Flow {
                id: source

                required property string title
                required property string address
                required property string host
                required property string checked

                width: parent?.width ?? 0
                spacing: 8

                WebButton {
                    id: link
                    width: Math.min(implicitWidth, source.width)
                    c: root.c
                    label: source.title
                    address: source.address
                    host: source.host
                }
                HvText {
                    visible: text !== ""
                    height: Math.max(implicitHeight, link.height)
                    text: source.checked
                    font: Type.smallPrint
                    color: root.c.oledDim
                    verticalAlignment: Text.AlignVCenter
                }
            }
        }
    }
    Flow {
        width: parent.width
        spacing: 8

        GlowButtonStyle {
            c: root.c
            compact: true
            label: event.bookmarked ? qsTr("Bookmarked") : qsTr("Bookmark")
            symbol: event.bookmarked ? "bookmark.fill" : "bookmark"
            onClicked: event.toggleBookmark()
        }
        GlowButtonStyle {
            c: root.c
            compact: true
            label: qsTr("Add note")
            symbol: "square.and.pencil"
            onClicked: event.addNote()
        }
    }
    NotesList {
        width: parent.width
        c: root.c
        targetType: "history"
        targetID: event.eventID
    }
}
