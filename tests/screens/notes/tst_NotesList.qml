import QtQuick
import QtTest
import Halvorin.Camera
import Halvorin.Kit
import Halvorin.Screens
import Halvorin.Shell
import Halvorin.Testing
import "../../kit/Find.js" as Find

TestCase {
    id: test
    name: "NotesList"
    when: windowShown
    width: 700
    height: 600
    visible: true

    property NotesList list

    Component {
        id: lists
        NotesList {
            width: 600
            targetType: "lesson"
            targetID: "l1"
            c: CameraPalette.current
        }
    }

    function init() {
        World.begin();
    }
    function open() {
        list = createTemporaryObject(lists, test);
        World.settle(list);
    }
    function root() {
        let item = list;
        while (item.parent)
            item = item.parent;
        return item;
    }
    // In the list, or in a question over it.
    function button(label) {
        return Find.button(root(), label);
    }
    function note(words) {
        return Find.first(list, item => item.visible && item.readOnly && item.text === words);
    }
    function question() {
        return Find.first(root(), item => item.visible && item.Accessible.role === Accessible.AlertMessage);
    }
    function cleanup() {
        if (question())
            keyClick(Qt.Key_Escape);
        tryVerify(() => !question());
    }

    function test_takes_no_room_without_notes() {
        World.addNote("lesson", "l2", "On another lesson");
        World.addNote("gear", "l1", "On another kind of thing");
        open();
        verify(!list.visible);
        verify(!Find.text(list, "MY NOTES"));
    }

    function test_without_a_store_it_is_not_there() {
        World.begin("small", false);
        open();
        verify(!list.visible);
    }

    function test_shows_the_notes_on_its_target_newest_first() {
        World.addNote("lesson", "l1", "First");
        World.addNote("lesson", "l2", "Elsewhere");
        World.addNote("lesson", "l1", "Second <b>bold</b>");
        open();
        const texts = Find.texts(list);
        compare(texts[0], "MY NOTES");
        verify(note("Second <b>bold</b>").mapToItem(list, 0, 0).y < note("First").mapToItem(list, 0, 0).y);
        verify(!note("Elsewhere"));
        compare(texts.filter(words => words.startsWith(World.day())).length, 2);
    }

    function test_follows_its_target_and_the_store() {
        open();
        World.addNote("lesson", "l1", "New");
        verify(list.visible);
        verify(note("New"));
        list.targetID = "l2";
        verify(!list.visible);
    }

    function test_breaks_a_word_of_pages_anywhere() {
        World.addNote("lesson", "l1", "Words");
        World.addNote("lesson", "l1", "m".repeat(5000));
        open();
        compare(note("Words").wrapMode, TextEdit.Wrap);
        compare(note("m".repeat(5000)).wrapMode, TextEdit.WrapAnywhere);
    }

    function test_opens_the_editor_on_a_note() {
        World.addNote("lesson", "l1", "To be changed");
        open();
        mouseClick(button("Edit"));
        compare(World.noteTarget(), "lesson l1");
        verify(AppModel.editsNote);
    }

    function test_asks_before_it_deletes() {
        World.addNote("lesson", "l1", "Still needed");
        open();
        mouseClick(button("Delete"));
        tryVerify(() => question());
        compare(question().Accessible.name, "Delete this note?. " + Words.localized("The note is removed from this Mac. This can't be undone."));
        compare(World.noteBodies(), ["Still needed"]);
        tryVerify(() => button("Cancel").activeFocus);
        mouseClick(button("Cancel"));
        tryVerify(() => !question());
        compare(World.noteBodies(), ["Still needed"]);
    }

    function test_deletes_after_a_yes() {
        World.addNote("lesson", "l1", "Kept");
        World.addNote("lesson", "l1", "Not needed");
        open();
        mouseClick(button("Delete"));
        tryVerify(() => button("Delete Note"));
        World.settle(list);
        mouseClick(button("Delete Note"));
        tryVerify(() => !question());
        compare(World.noteBodies(), ["Kept"]);
        verify(note("Kept"));
        verify(!note("Not needed"));
    }

    function test_escape_and_return_keep_the_note() {
        World.addNote("lesson", "l1", "Kept");
        open();
        for (const key of [Qt.Key_Escape, Qt.Key_Return]) {
            mouseClick(button("Delete"));
            tryVerify(() => question() && button("Cancel").activeFocus);
            keyClick(key);
            tryVerify(() => !question());
        }
        compare(World.noteBodies(), ["Kept"]);
    }

    function test_says_why_a_note_could_not_be_deleted() {
        World.addNote("lesson", "l1", "Stays");
        World.fillDisk();
        open();
        mouseClick(button("Delete"));
        tryVerify(() => button("Delete Note"));
        World.settle(list);
        mouseClick(button("Delete Note"));
        tryVerify(() => !question());
        verify(AppModel.messageText.includes("disk is full"));
        compare(World.noteBodies(), ["Stays"]);
        verify(note("Stays"));
    }

    function test_shows_older_ones_on_request() {
        World.keepMany(100, 0);
        open();
        const cards = () => Find.buttons(list).filter(item => item.label === "Edit").length;
        compare(cards(), 40);
        verify(button("Show older notes (60)"));
        button("Show older notes (60)").clicked();
        compare(cards(), 80);
        button("Show older notes (20)").clicked();
        compare(cards(), 100);
        verify(!Find.buttons(list).some(item => item.label.startsWith("Show older")));
    }
}
