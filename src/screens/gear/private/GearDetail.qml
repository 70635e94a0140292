pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens

/*! The page of an entry: what it is called, its drawing, its text, products as examples, what else
    to read, and the user's notes. */
HVScroll {
    id: root

    required property string entryID
    readonly property string title: entry.name
    readonly property string diagram: entry.diagram

    signal enlargeRequested()

    function focusDrawing(): void {
        head.focusDrawing();
    }

    spokenName: root.title
    padding: 24
    spacing: 14
    maximumWidth: 900
    // A new entry is read from its beginning.
    onEntryIDChanged: root.contentY = 0

    GearReading {
        id: entry
        entryID: root.entryID
    }
    GearHead {
        id: head
        width: parent.width
        c: root.c
        entry: entry
        onEnlargeRequested: root.enlargeRequested()
    }
    RichText {
        width: parent.width
        c: root.c
        text: entry.body
        title: entry.name
    }
    SectionCaption {
        c: root.c
        visible: entry.examples.count > 0
        text: qsTr("EXAMPLE MODELS FOR DIFFERENT USES")
    }
    Repeater {
        model: entry.examples
        delegate: GearExample {
            width: parent?.width ?? 0
            c: root.c
        }
    }
    HvText {
        width: parent.width
        visible: entry.examples.count > 0
        text: entry.specsNote
        font: Type.detail
        color: root.c.oledDim
        wrapMode: Text.Wrap
    }
    SectionCaption {
        c: root.c
        visible: entry.seeAlso.count > 0
        text: qsTr("SEE ALSO")
    }
    FlowRow {
        width: parent.width
        c: root.c
        model: entry.seeAlso
        symbol: "books.vertical"
        onChosen: itemID => entry.open(itemID)
    }
    NotesList {
        width: parent.width
        c: root.c
        targetType: "gear"
        targetID: entry.entryID
    }
}
