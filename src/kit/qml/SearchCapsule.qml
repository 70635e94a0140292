import QtQuick
import QtQuick.Templates as T
import Halvorin.Kit

/*! A search field in a capsule: a glass, the text and, while there is text, a button that clears
    it. The text belongs to the caller: it comes in as `text` and goes out with `edited`. */
Item {
    id: root

    required property string prompt
    required property string text
    /*! What a search has found, for who can't see the list. */
    property string outcome: ""
    property real spacing: 6
    property color ink: CNUI.theme.text
    property color dimInk: CNUI.theme.dim
    property color fill: Metal.fieldFill
    property color rim: CNUI.theme.rim
    readonly property alias editing: field.activeFocus

    signal edited(string text)

    function focusField(): void {
        field.forceActiveFocus(Qt.ShortcutFocusReason);
        field.selectAll();
    }

    /*! Goes on with the search by a key that was pressed elsewhere, if it types something. */
    function typeOn(event: var): void {
        const command = event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier);
        event.accepted = !command && event.text.trim() !== "" && event.text >= " " && event.key !== Qt.Key_Delete;
        if (!event.accepted)
            return;
        field.forceActiveFocus(Qt.ShortcutFocusReason);
        root.edited(root.text + event.text);
        field.cursorPosition = field.length;
    }

    onTextChanged: if (field.text !== root.text) field.text = root.text

    implicitWidth: 220
    implicitHeight: field.implicitHeight + 14

    ContinuousRectangle {
        anchors.fill: parent
        radius: height / 2
        fillFrom: root.fill
        strokeWidth: field.activeFocus ? 1.6 : 1
        strokeFrom: field.activeFocus ? root.ink : root.rim
    }
    Symbol {
        id: glass
        x: 12
        anchors.verticalCenter: parent.verticalCenter
        name: "magnifyingglass"
        pointSize: 12
        weight: Font.Medium
        ink: root.dimInk
    }
    T.TextField {
        id: field
        readonly property Item focusFrame: root
        anchors {
            left: glass.right
            leftMargin: root.spacing
            right: parent.right
            rightMargin: clear.visible ? clear.width + 12 : 12
            verticalCenter: parent.verticalCenter
        }
        implicitHeight: Math.ceil(contentHeight)
        padding: 0
        clip: contentWidth > width
        text: root.text
        color: root.ink
        selectionColor: CNUI.theme.accent
        selectedTextColor: "white"
        selectByMouse: true
        maximumLength: 8000 // Several pages; the field lays all of it out.
        // Beside the prompt; by itself the cursor of an empty field goes where the keyboard's language
        // begins its lines.
        horizontalAlignment: TextInput.AlignLeft
        verticalAlignment: TextInput.AlignVCenter
        font: Type.field
        onTextEdited: root.edited(field.text)
        Accessible.name: root.prompt
        Accessible.description: root.outcome
        Accessible.searchEdit: true
        Keys.onEscapePressed: event => {
            event.accepted = field.text !== "";
            if (event.accepted)
                root.edited("");
        }

        TextMenu {}
        MuteHvText {
            anchors.fill: parent
            visible: field.text === "" && field.preeditText === ""
            text: root.prompt
            color: root.dimInk
            font: field.font
            elide: Text.ElideRight
            verticalAlignment: Text.AlignVCenter
        }
    }
    Pressable {
        id: clear
        anchors {
            right: parent.right
            rightMargin: 5
            verticalCenter: parent.verticalCenter
        }
        visible: field.text !== ""
        width: 24
        height: 24
        padding: 4
        cornerRadius: 12
        tip: "Clear search"
        focusInk: root.ink
        onClicked: {
            root.edited("");
            field.forceActiveFocus();
        }
        contentItem: Symbol {
            name: "xmark.circle.fill"
            ink: clear.hovered ? root.ink : root.dimInk
        }
    }
}
