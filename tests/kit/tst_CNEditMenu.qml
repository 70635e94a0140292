import QtQuick
import QtQuick.Templates as T
import QtTest
import Halvorin.Kit
import "Find.js" as Find

TestCase {
    id: test
    name: "CNEditMenu"
    when: windowShown
    width: 400
    height: 300
    visible: true

    TextInput {
        id: field
        width: 200
        height: 24
        TextMenu {
            id: menuOfField
        }
    }
    TextEdit {
        id: reading
        y: 40
        width: 200
        height: 60
        readOnly: true
        text: "Light is the whole game."
    }
    TextEdit {
        id: writing
        y: 120
        width: 200
        height: 60
    }
    TextEditing {
        id: editing
    }
    CNEditMenu {
        id: menu
        editing: editing
    }

    function init() {
        field.text = "";
        field.text = "f/2.8";
        field.deselect();
        reading.deselect();
        editing.text = null;
    }
    function entry(words) {
        for (let i = 0; i < menu.count; ++i) {
            if (menu.itemAt(i).text === words)
                return menu.itemAt(i);
        }
        return null;
    }
    function usable() {
        return ["Undo", "Redo", "Cut", "Copy", "Paste", "Select All"].filter(words => entry(words).enabled && words !== "Paste");
    }

    function test_has_its_entries_and_keys() {
        const rows = [];
        for (let i = 0; i < menu.count; ++i)
            rows.push([menu.itemAt(i).text ?? "-", menu.itemAt(i).action?.shortcut ?? ""]);
        compare(rows, [["Undo", "Ctrl+Z"], ["Redo", "Ctrl+Shift+Z"], ["-", ""], ["Cut", "Ctrl+X"], ["Copy", "Ctrl+C"],
                       ["Paste", "Ctrl+V"], ["-", ""], ["Select All", "Ctrl+A"]]);
    }

    function test_can_do_nothing_without_a_text() {
        compare(usable(), []);
        verify(!entry("Paste").enabled);
        entry("Select All").action.trigger();
    }

    function test_cuts_copies_and_pastes() {
        editing.text = field;
        compare(usable(), ["Select All"]);
        entry("Select All").action.trigger();
        compare(field.selectedText, "f/2.8");
        compare(usable(), ["Cut", "Copy", "Select All"]);
        entry("Cut").action.trigger();
        compare(field.text, "");
        verify(entry("Paste").enabled);
        entry("Paste").action.trigger();
        entry("Paste").action.trigger();
        compare(field.text, "f/2.8f/2.8");
    }

    function test_undoes_and_redoes() {
        editing.text = field;
        field.forceActiveFocus();
        keyClick("x");
        verify(entry("Undo").enabled);
        const typed = field.text;
        entry("Undo").action.trigger();
        verify(field.text !== typed);
        entry("Redo").action.trigger();
        compare(field.text, typed);
    }

    // That it can be undone is told in the middle of it, when Qt's text and selection don't agree.
    function test_lives_through_the_replacement_of_a_selection() {
        writing.text = "Light\nis the\nwhole\ngame.";
        editing.text = writing;
        writing.forceActiveFocus();
        writing.selectAll();
        keyClick("x");
        compare(writing.text, "x");
        verify(entry("Undo").enabled);
        verify(!entry("Copy").enabled);
    }

    function test_only_copies_what_is_only_read() {
        editing.text = reading;
        reading.selectAll();
        compare(usable(), ["Copy", "Select All"]);
        verify(!entry("Paste").enabled);
        entry("Copy").action.trigger();
        field.text = "";
        field.paste();
        compare(field.text, "Light is the whole game.");
    }

    function opened() {
        return Find.first(test.Window.window.contentItem, item => item.visible && item.text === "Select All" && item.highlighted !== undefined) !== null;
    }

    function test_opens_over_the_text_by_the_right_button_and_keeps_the_selection() {
        field.selectAll();
        mouseClick(field, 20, 10, Qt.RightButton);
        tryVerify(opened);
        compare(field.selectedText, "f/2.8");
        keyClick(Qt.Key_Escape);
        tryVerify(() => !opened());
    }

    function test_opens_over_the_text_by_key() {
        for (const [key, modifier] of [[Qt.Key_Menu, Qt.NoModifier], [Qt.Key_F10, Qt.ShiftModifier]]) {
            field.forceActiveFocus();
            keyClick(key, modifier);
            tryVerify(opened);
            keyClick(Qt.Key_Escape);
            tryVerify(() => !opened());
        }
    }
}
