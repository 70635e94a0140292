pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Halvorin.Kit

/*! A field for several lines of plain text, which scrolls when it is full. Tab goes on to the next
    control; a text has no need of it. */
Item {
    id: root

    property alias text: area.text
    readonly property alias document: area.textDocument
    readonly property alias editing: area.activeFocus
    /*! What the field is for assistive technology. */
    property string title: ""

    function focusField(): void {
        area.cursorPosition = area.length;
        area.forceActiveFocus(Qt.ShortcutFocusReason);
    }

    ContinuousRectangle {
        anchors.fill: parent
        radius: 8
        fillFrom: Metal.fieldFill
        strokeWidth: area.activeFocus ? 1.6 : 1
        strokeFrom: area.activeFocus ? CNUI.theme.text : Qt.alpha(CNUI.theme.dim, 0.4)
    }
    ScrollSurface {
        id: pane
        anchors.fill: parent
        anchors.margins: 2
        contentWidth: width
        contentHeight: area.implicitHeight

        function follow(line: rect): void {
            pane.scrollTo(0, Math.min(line.y - area.topPadding, Math.max(pane.contentY, line.y + line.height + area.bottomPadding - pane.height)));
        }

        T.TextArea {
            id: area
            readonly property Item focusFrame: root
            width: pane.width
            height: Math.max(implicitHeight, pane.height)
            implicitHeight: contentHeight + topPadding + bottomPadding
            padding: 8
            rightPadding: 14
            color: CNUI.theme.text
            selectionColor: CNUI.theme.accent
            selectedTextColor: "white"
            selectByMouse: true
            textFormat: TextEdit.PlainText
            wrapMode: Words.wrapMode(area.text)
            font: Type.writing
            onCursorRectangleChanged: pane.follow(cursorRectangle)
            Accessible.role: Accessible.EditableText
            Accessible.name: root.title
            Accessible.multiLine: true
            Keys.priority: Keys.BeforeItem
            Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
            Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

            TextMenu {}
            HoverHandler {
                cursorShape: Qt.IBeamCursor
            }
        }
    }
}
