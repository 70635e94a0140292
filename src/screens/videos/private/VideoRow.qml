import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens

/*! A film in the library's list: its title, its channel and how long it is. */
WalkedRow {
    id: root

    required property string title
    required property string byline

    label: root.title
    Accessible.description: root.byline

    contentItem: Item {
        implicitHeight: words.height

        Column {
            id: words
            width: parent.width
            spacing: 1

            MuteHvText {
                width: parent.width
                text: root.title
                font: root.selected ? Type.selectedFilmRow : Type.filmRow
                color: root.selected ? root.c.glow : root.c.oledText
                wrapMode: Text.Wrap
            }
            MuteHvText {
                width: parent.width
                text: root.byline
                font: Type.smallPrint
                color: root.c.oledDim
                wrapMode: Text.Wrap
            }
        }
    }
}
