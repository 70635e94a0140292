pragma ComponentBehavior: Bound

import QtQuick
import Halvorin.Kit
import Halvorin.Camera
import Halvorin.Screens

/*! A long course text: headings, bullets, callouts and paragraphs, as high as it needs to be and
    one selection from end to end. */
Item {
    id: root

    required property string text
    required property hvColors c
    property real size: 14
    /*! What assistive technology calls the text as a whole. */
    property string title: ""

    implicitHeight: words.length === 0 ? 0 : words.implicitHeight

    RichTextFlow {
        id: flow
        document: words.textDocument
        text: root.text
        glow: root.c.glow
        size: root.size
    }
    ReadingKeys {
        id: keys
        text: words
    }
    Repeater {
        model: flow.plates
        delegate: ContinuousRectangle {
            required property rect modelData
            y: modelData.y
            width: root.width
            height: modelData.height
            radius: 10
            fillFrom: root.c.callout
        }
    }
    Repeater {
        model: flow.bars
        delegate: Rectangle {
            required property rect modelData
            x: modelData.x
            y: modelData.y
            width: modelData.width
            height: modelData.height
            color: root.c.warn
        }
    }
    Repeater {
        model: flow.dots
        delegate: ContinuousRectangle {
            required property rect modelData
            x: modelData.x
            y: modelData.y
            width: modelData.width
            height: modelData.height
            radius: width / 2
            fillFrom: root.c.glow
        }
    }
    TextEdit {
        id: words
        width: root.width
        readOnly: true
        selectByMouse: true
        selectByKeyboard: true
        persistentSelection: true
        activeFocusOnTab: true
        cursorVisible: keys.caret
        textFormat: TextEdit.PlainText
        wrapMode: TextEdit.Wrap
        font: CNUI.cnFont(root.size)
        color: root.c.oledText
        selectionColor: root.c.selection
        selectedTextColor: "white"
        Accessible.role: Accessible.Document
        Accessible.name: root.title
        Accessible.readOnly: true
        Accessible.multiLine: true
        Accessible.selectableText: true

        TextMenu {}
        // The text as it is read out, piece by piece. The pieces show nothing themselves.
        Repeater {
            model: flow.blocks
            delegate: Item {
                required property var modelData
                x: modelData.area.x
                y: modelData.area.y
                width: modelData.area.width
                height: modelData.area.height
                Accessible.role: modelData.role
                Accessible.name: modelData.text
            }
        }
        HoverHandler {
            cursorShape: Qt.IBeamCursor
        }
    }
}
