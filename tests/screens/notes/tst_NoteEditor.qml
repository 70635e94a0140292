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
    name: "NoteEditor"
    when: windowShown
    width: 900
    height: 620
    visible: true

    // As the window has it: there while a note is being written.
    property Item host

    Component {
        id: hosts
        Loader {
            active: AppModel.editsNote
            sourceComponent: editors
        }
    }
    Component {
        id: editors
        NoteEditor {
            c: CameraPalette.current
        }
    }

    function init() {
        World.begin();
        host = createTemporaryObject(hosts, test);
    }
    function cleanup() {
        AppModel.dismissNote();
        ZoomControl.actualSize();
    }
    function root() {
        let item = host;
        while (item.parent)
            item = item.parent;
        return item;
    }
    function sheet() {
        return Find.first(root(), item => item.visible && item.Accessible.role === Accessible.Dialog);
    }
    function field() {
        return Find.first(root(), item => item.selectAll !== undefined && item.readOnly === false && item.echoMode === undefined);
    }
    function button(label) {
        return Find.button(root(), label);
    }
    function shows(words) {
        return Find.text(root(), words) !== null;
    }
    function write() {
        AppModel.newNote("lesson", "l1");
        tryVerify(() => sheet() && field()?.activeFocus);
    }
    function change() {
        World.editNote();
        tryVerify(() => sheet() && field()?.activeFocus);
    }
    function save() {
        keySequence("Ctrl+S");
    }

    function test_begins_a_note() {
        write();
        verify(shows("New note"));
        verify(shows("Lesson: A hole in the dark"));
        compare(field().text, "");
        verify(!AppModel.draftIsUnsaved);
    }

    function test_saves_what_is_written() {
        write();
        for (const key of "light")
            keyClick(key);
        verify(AppModel.draftIsUnsaved);
        save();
        tryVerify(() => !sheet());
        compare(World.noteBodies(), ["light"]);
        verify(!AppModel.editsNote);
        verify(!AppModel.draftIsUnsaved);
    }

    function test_saves_by_its_button() {
        write();
        field().text = "Mind the horizon.";
        mouseClick(button("Save Note"));
        tryVerify(() => !sheet());
        compare(World.noteBodies(), ["Mind the horizon."]);
    }

    function test_changes_a_note_that_is_there() {
        World.addNote("lesson", "l1", "Before");
        change();
        verify(shows("Edit note"));
        compare(field().text, "Before");
        verify(!AppModel.draftIsUnsaved);
        field().text = "After";
        save();
        tryVerify(() => !sheet());
        compare(World.noteBodies(), ["After"]);
    }

    function test_cancel_drops_what_was_written_data() {
        return [{ tag: "by key", byKey: true }, { tag: "by button", byKey: false }];
    }
    function test_cancel_drops_what_was_written(data) {
        World.addNote("lesson", "l1", "Before");
        change();
        field().text = "Never mind";
        if (data.byKey)
            keyClick(Qt.Key_Escape);
        else
            mouseClick(button("Cancel"));
        tryVerify(() => !sheet());
        verify(!AppModel.editsNote);
        verify(!AppModel.draftIsUnsaved);
        compare(World.noteBodies(), ["Before"]);
    }

    function test_tells_in_red_why_a_note_could_not_be_saved_and_keeps_it() {
        write();
        field().text = "Not to be lost";
        World.fillDisk();
        save();
        const reason = Find.first(root(), item => Find.isText(item) && item.visible && item.text.includes("disk is full"));
        verify(reason);
        compare(String(reason.color), String(CameraPalette.current.bad));
        compare(AppModel.messageText, "");
        compare(field().text, "Not to be lost");
        verify(AppModel.draftIsUnsaved);
        // Writing on doesn't take the line away.
        keyClick("x");
        verify(reason.visible);
    }

    function test_refuses_an_empty_note() {
        write();
        field().text = "  \n ";
        save();
        verify(shows("A note can't be empty."));
        verify(sheet());
        field().text = "A word";
        verify(shows("A note can't be empty."));
        save();
        tryVerify(() => !sheet());
        compare(World.noteBodies(), ["A word"]);
    }

    function test_a_note_may_have_20000_characters_and_no_more() {
        write();
        field().text = "x".repeat(20001);
        save();
        verify(shows("That note is very long (over 20,000 characters). Please split it into two notes."));
        compare(field().text.length, 20001);
        field().text = "x".repeat(20000);
        save();
        tryVerify(() => !sheet());
        compare(World.noteBodies()[0].length, 20000);
    }

    function test_a_family_counts_as_one_character() {
        const family = "👨‍👩‍👧‍👦";
        write();
        field().text = family.repeat(20000);
        save();
        tryVerify(() => !sheet());
        compare(World.noteBodies()[0], family.repeat(20000));
    }

    function test_says_that_a_note_was_deleted_meanwhile() {
        World.addNote("lesson", "l1", "Before");
        change();
        World.loseNotes();
        field().text = "After";
        save();
        verify(shows("That record no longer exists."));
        compare(field().text, "After");
    }

    function test_lets_no_null_character_into_a_note() {
        write();
        field().text = "a\u0000b\u0000";
        save();
        tryVerify(() => !sheet());
        compare(World.noteBodies(), ["ab"]);
    }

    function test_keeps_every_other_character() {
        const body = "déjà\u00a0vu ✓ <b>&amp;</b>\n\n\tÅngström «\u202f2\u202f» 日本";
        World.addNote("lesson", "l1", body);
        change();
        verify(!AppModel.draftIsUnsaved);
        field().insert(field().length, "!");
        verify(AppModel.draftIsUnsaved);
        field().remove(field().length - 1, field().length);
        verify(!AppModel.draftIsUnsaved);
        field().insert(field().length, "!");
        save();
        tryVerify(() => !sheet());
        compare(World.noteBodies(), [body + "!"]);
    }

    function test_another_note_waits_while_one_is_unsaved() {
        write();
        field().text = "Still at it";
        AppModel.newNote("general", "general");
        compare(World.noteTarget(), "lesson l1");
        compare(field().text, "Still at it");
    }

    function test_without_a_store_it_just_closes() {
        World.begin("small", false);
        write();
        field().text = "Lost";
        save();
        tryVerify(() => !sheet());
    }

    function test_tab_goes_to_the_buttons_and_back() {
        write();
        keyClick(Qt.Key_Tab);
        verify(button("Cancel").activeFocus);
        keyClick(Qt.Key_Tab);
        verify(button("Save Note").activeFocus);
        keyClick(Qt.Key_Backtab);
        keyClick(Qt.Key_Backtab);
        verify(field().activeFocus);
        compare(field().text, "");
    }

    function test_follows_the_cursor_through_a_long_note() {
        World.addNote("lesson", "l1", "A line\n".repeat(200));
        change();
        const seen = () => {
            const y = field().mapToItem(sheet(), 0, field().cursorRectangle.y).y;
            return y > 0 && y < sheet().height;
        };
        tryVerify(seen); // It begins at its end.
        field().cursorPosition = 0;
        tryVerify(seen);
    }

    function test_stays_inside_the_window_at_every_zoom() {
        for (const level of ["85%", "100%", "150%", "200%"]) {
            ZoomControl.chooseLevel(ZoomControl.levelTitles.indexOf(level));
            write();
            World.settle(host);
            const corner = sheet().mapToItem(null, 0, 0);
            verify(corner.y >= 0 && corner.x >= 0, level);
            verify(corner.y + sheet().height <= test.height && corner.x + sheet().width <= test.width, level);
            const last = button("Save Note").mapToItem(sheet(), 0, button("Save Note").height).y;
            verify(last <= sheet().height, level);
            AppModel.dismissNote();
            tryVerify(() => !sheet());
        }
    }
}
