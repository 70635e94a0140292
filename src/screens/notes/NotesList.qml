pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens

/*! The user's notes on one thing, to be changed and deleted. It takes no room while there are
    none. */
Column {
    id: root

    required property string targetType
    required property string targetID
    required property hvColors c

    /*! While the question is up whether to delete a note. */
    property bool asks: false
    property var noteToDelete

    spacing: 8
    visible: notes.count > 0

    TargetNotes {
        id: notes
        targetType: root.targetType
        targetID: root.targetID
    }
    SectionCaption {
        c: root.c
        text: qsTr("MY NOTES")
    }
    Repeater {
        model: notes
        delegate: OLEDCard {
            id: card

            required property int index
            required property var noteID
            required property string body
            required property string changed

            width: root.width
            c: root.c

            Column {
                width: parent.width
                spacing: 6

                NoteText {
                    width: parent.width
                    c: root.c
                    text: card.body
                }
                Item {
                    width: parent.width
                    height: buttons.height

                    HvText {
                        anchors.verticalCenter: parent.verticalCenter
                        text: card.changed
                        font: Type.date
                        color: root.c.oledDim
                    }
                    Row {
                        id: buttons
                        anchors.right: parent.right
                        spacing: 8

                        GlowButtonStyle {
                            c: root.c
                            compact: true
                            label: qsTr("Edit")
                            onClicked: notes.edit(card.index)
                        }
                        GlowButtonStyle {
                            c: root.c
                            compact: true
                            label: qsTr("Delete")
                            onClicked: {
                                root.noteToDelete = card.noteID;
                                root.asks = true;
                            }
                        }
                    }
                }
            }
        }
    }
    GlowButtonStyle {
        visible: notes.hidden > 0
        c: root.c
        compact: true
        symbol: "chevron.down"
        label: qsTr("Show older notes (%1)").arg(notes.hidden)
        onClicked: notes.showMore()
    }
    // None or one: hardly anybody deletes a note, and every lesson has this list.
    Repeater {
        model: root.asks ? 1 : 0
        delegate: Item {
            CNDialog {
                title: qsTr("Delete this note?")
                message: Words.localized(qsTr("The note is removed from this Mac. This can't be undone."))
                buttonTitle: qsTr("Delete Note")
                cancelTitle: qsTr("Cancel")
                destructive: true
                visible: true
                onAccepted: notes.remove(root.noteToDelete)
                onClosed: root.asks = false
            }
        }
    }
}
