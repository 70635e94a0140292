import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens

/*! A row of what the user has kept: a bookmark, the caption over the notes, or a note. */
Loader {
    id: root

    required property hvColors c
    required property bool endsCard
    required property int index
    required property int kind
    required property string title
    required property string body
    required property string changed

    signal chosen()
    /*! Tab (a delta of 1) or Shift and Tab (−1) in the row. */
    signal leaves(delta: int)

    function takeFocus(reason: int): void {
        root.item?.target?.forceActiveFocus(reason);
    }

    QtObject {
        id: metrics
        readonly property real spacing: 16
        readonly property real bookmarkPadding: 10
        readonly property real notePadding: 11
    }

    // Over its neighbors, which would cover the ring around what has the focus.
    z: root.activeFocus ? 1 : 0
    sourceComponent: {
        switch (root.kind) {
        case Keepsakes.BookmarkRow: return bookmark;
        case Keepsakes.CaptionRow: return caption;
        default: return note;
        }
    }

    // Qt 6.4's Loader can't create components of a file that binds them, so these reach out unbound.
    // qmllint disable unqualified
    Component {
        id: bookmark
        CardSlice {
            readonly property Item target: row

            width: root.width
            height: row.height + (root.endsCard ? metrics.bookmarkPadding - 2 : 0)
            c: root.c
            isLast: root.endsCard

            Pressable {
                id: row
                x: metrics.bookmarkPadding
                width: Math.min(implicitWidth, parent.width - 2 * metrics.bookmarkPadding)
                verticalPadding: 4
                cornerRadius: 8
                focusInk: root.c.glow
                label: root.title
                onClicked: root.chosen()
                Keys.onTabPressed: root.leaves(1)
                Keys.onBacktabPressed: root.leaves(-1)

                contentItem: Item {
                    implicitWidth: mark.width + 8 + words.implicitWidth
                    implicitHeight: words.implicitHeight
                    Symbol {
                        id: mark
                        anchors.verticalCenter: parent.verticalCenter
                        name: "bookmark.fill"
                        pointSize: 12
                        ink: root.c.glow
                    }
                    MuteHvText {
                        id: words
                        x: mark.width + 8
                        width: parent.width - x
                        text: root.title
                        font: Type.text
                        color: root.c.oledText
                        elide: Text.ElideRight
                    }
                }
                background: ContinuousRectangle {
                    visible: row.hovered
                    x: -6
                    width: row.width + 12
                    height: row.height
                    radius: row.cornerRadius
                    fillFrom: root.c.hover
                }
            }
        }
    }
    Component {
        id: caption
        Item {
            readonly property Item target: null

            width: root.width
            height: words.height + metrics.spacing
            SectionCaption {
                id: words
                y: metrics.spacing
                c: root.c
                topPadding: 0
                text: root.title
            }
        }
    }
    Component {
        id: note
        Item {
            readonly property Item target: name

            width: root.width
            height: card.height + metrics.spacing
            OLEDCard {
                id: card
                y: metrics.spacing
                width: parent.width
                padding: metrics.notePadding
                c: root.c

                Column {
                    width: parent.width
                    spacing: 5

                    Pressable {
                        id: name
                        width: Math.min(implicitWidth, parent.width)
                        cornerRadius: 6
                        focusInk: root.c.glow
                        label: root.title
                        onClicked: root.chosen()
                        Keys.onTabPressed: root.leaves(1)
                        Keys.onBacktabPressed: root.leaves(-1)
                        contentItem: MuteHvText {
                            text: root.title
                            font: Type.noteTarget
                            color: name.hovered ? root.c.oledText : root.c.glow
                            elide: Text.ElideRight
                        }
                    }
                    NoteText {
                        width: parent.width
                        c: root.c
                        text: root.body
                    }
                    HvText {
                        text: root.changed
                        font: Type.date
                        color: root.c.oledDim
                    }
                }
            }
        }
    }
}
