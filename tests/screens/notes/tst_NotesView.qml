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
    name: "NotesView"
    when: windowShown
    width: 1100
    height: 700
    visible: true

    property NotesView page

    Component {
        id: pages
        NotesView {
            width: 1100
            height: 700
            c: CameraPalette.current
            focus: true
        }
    }

    function open() {
        page = createTemporaryObject(pages, test);
        page.forceActiveFocus();
        World.settle(page);
    }
    function button(label) {
        return Find.button(page, label);
    }
    // A line of the interface or the words of a note.
    function line(words) {
        return Find.text(page, words) ?? Find.first(page, item => item.visible && item.readOnly && item.text === words);
    }
    function shows(words) {
        return line(words) !== null;
    }
    function title() {
        return Find.first(page, item => item.subtitle !== undefined);
    }
    function texts() {
        return Find.texts(page);
    }
    // From top to bottom, as they are drawn.
    function order(...words) {
        const places = words.map(each => line(each)?.mapToItem(page, 0, 0).y ?? -1);
        return places.every((y, i) => y >= 0 && (i === 0 || y > places[i - 1]));
    }

    function test_without_anything_kept_it_tells_how_to_begin() {
        World.begin();
        open();
        compare(title().title, "My Notes & Progress");
        verify(shows("PROGRESS — 0 of 4 lessons"));
        verify(shows("BOOKMARKS (0)"));
        verify(shows("Use the Bookmark button on any lesson, gear entry, history event or video."));
        verify(shows("ALL NOTES (0)"));
        compare(texts().filter(words => words === "no quiz yet").length, 3);
    }

    function test_without_a_store_it_is_empty_and_its_buttons_do_no_harm() {
        World.begin("small", false);
        open();
        verify(shows("PROGRESS — 0 of 4 lessons"));
        verify(shows("BOOKMARKS (0)"));
        verify(shows("ALL NOTES (0)"));
        compare(texts().filter(words => words === "no quiz yet").length, 3);
        mouseClick(button("Export"));
        compare(AppModel.messageText, "");
    }

    function test_speaks_of_the_machine_in_its_platforms_words() {
        World.begin();
        open();
        compare(title().subtitle, Words.localized("Everything here is saved on this Mac and can always be exported."));
    }

    function test_shows_progress_and_the_best_quiz_of_each_module() {
        World.begin();
        World.finish(["l1", "gone"]);
        World.addScore("light", 1, 2, 2);
        World.addScore("light", 2, 2, 1);
        World.addScore("light", 0, 2);
        open();
        // The caption counts what is stored, also of lessons that have left the course.
        verify(shows("PROGRESS — 2 of 4 lessons"));
        verify(shows("1/2"));
        verify(shows("0/1"));
        verify(shows("quiz 2/2"));
        const bars = Find.all(page, item => item.done !== undefined && item.total !== undefined && item.fillFrom !== undefined);
        compare(bars.map(bar => bar.done), [1, 0, 0]);
        compare(bars.map(bar => bar.total), [2, 1, 0]);
        compare(bars.map(bar => bar.height), [6, 6, 6]);
    }

    function test_follows_the_store() {
        World.begin();
        open();
        World.finish(["l1"]);
        verify(shows("PROGRESS — 1 of 4 lessons"));
        World.setBookmark("gear", "tripod");
        World.addNote("general", "general", "Buy film.");
        World.settle(page);
        verify(shows("BOOKMARKS (1)"));
        verify(shows("Gear: Tripod"));
        verify(shows("ALL NOTES (1)"));
        verify(!shows("Use the Bookmark button on any lesson, gear entry, history event or video."));
    }

    function test_bookmarks_lead_to_what_they_mark() {
        World.begin();
        World.setBookmark("gear", "tripod");
        World.setBookmark("lesson", "l2");
        open();
        verify(order("BOOKMARKS (2)", "Lesson: A lens in the hole", "Gear: Tripod", "ALL NOTES (0)"));
        mouseClick(button("Gear: Tripod"));
        compare(AppModel.screen, HVScreen.Gear);
        compare(World.gearID(), "tripod");
        mouseClick(button("Lesson: A lens in the hole"));
        compare(AppModel.screen, HVScreen.Course);
        compare(World.lessonID(), "l2");
    }

    function test_notes_stand_newest_first_and_lead_to_their_targets() {
        World.begin();
        World.addNote("lesson", "l1", "An <b>old</b> note");
        World.addNote("general", "general", "Newer,\nof two lines ✓");
        open();
        verify(order("ALL NOTES (2)", "General note", "Newer,\nof two lines ✓", "Lesson: A hole in the dark", "An <b>old</b> note"));
        mouseClick(button("Lesson: A hole in the dark"));
        compare(World.lessonID(), "l1");
        mouseClick(button("General note"));
        compare(AppModel.screen, HVScreen.Notes);
        compare(texts().filter(words => words.startsWith(World.day())).length, 2);
    }

    function test_what_has_left_the_course_keeps_its_row_and_leads_nowhere() {
        World.begin();
        World.setBookmark("lesson", "gone");
        World.addNote("lesson", "gone", "About what is gone");
        open();
        compare(Find.buttons(page).filter(item => item.label === "Lesson: gone").length, 2);
        mouseClick(button("Lesson: gone"));
        compare(AppModel.screen, HVScreen.Home);
        compare(World.lessonID(), "none");
    }

    function test_notes_can_neither_be_changed_nor_deleted_here() {
        World.begin();
        World.addNote("lesson", "l1", "A note");
        open();
        compare(Find.buttons(page).map(item => item.label), ["New note", "Export", "Lesson: A hole in the dark"]);
    }

    function test_starts_a_general_note() {
        World.begin();
        open();
        mouseClick(button("New note"));
        compare(World.noteTarget(), "general general");
    }

    function test_exports_also_if_the_screen_is_left_meanwhile() {
        World.begin();
        World.addNote("general", "general", "A note");
        open();
        World.answerSavePanel("Halvorin notes.txt", page);
        mouseClick(button("Export"));
        tryVerify(() => World.text("Halvorin notes.txt").includes("A note"));
    }

    function test_exports_to_the_file_that_the_user_names() {
        World.begin();
        World.addNote("lesson", "l1", "A note ✓");
        World.answerSavePanel("Halvorin notes.txt");
        open();
        mouseClick(button("Export"));
        tryVerify(() => World.text("Halvorin notes.txt") !== "");
        // The second line tells the minute.
        const lines = text => text.split("\n").filter((line, i) => i !== 1);
        compare(lines(World.text("Halvorin notes.txt")), lines(World.exportText()));
        compare(AppModel.messageText, "");
    }

    function test_a_note_can_be_selected_and_copied() {
        World.begin();
        World.addNote("lesson", "l1", "Mind the horizon.");
        open();
        const note = Find.first(page, item => item.selectAll !== undefined && item.readOnly);
        mouseClick(note, 4, 4);
        keySequence(StandardKey.SelectAll);
        keySequence(StandardKey.Copy);
        compare(World.copiedText(), "Mind the horizon.");
        button("Export").forceActiveFocus();
        compare(note.selectedText, "");
    }

    function test_is_walked_through_by_keyboard() {
        World.begin();
        World.setBookmark("gear", "tripod");
        World.addNote("lesson", "l1", "A note");
        World.addNote("general", "general", "Another");
        open();
        const seen = [];
        for (let i = 0; i < 5; ++i) {
            keyClick(Qt.Key_Tab);
            seen.push(Find.first(page, item => Find.isButton(item) && item.activeFocus)?.label);
        }
        compare(seen, ["New note", "Export", "Gear: Tripod", "General note", "Lesson: A hole in the dark"]);
        keyClick(Qt.Key_Backtab);
        keyClick(Qt.Key_Backtab);
        verify(button("Gear: Tripod").activeFocus);
        keyClick(Qt.Key_Return);
        compare(AppModel.screen, HVScreen.Gear);
    }

    function test_makes_only_what_can_be_seen_of_a_long_list() {
        World.begin();
        World.keepMany(2000, 500);
        open();
        verify(shows("BOOKMARKS (500)"));
        verify(Find.buttons(page).length < 80);
        keyClick(Qt.Key_End);
        World.settle(page);
        keyClick(Qt.Key_End);
        World.settle(page);
        // The oldest of all stands last.
        tryVerify(() => shows("Note 0. "));
        verify(Find.buttons(page).length < 80);
        keyClick(Qt.Key_Home);
        World.settle(page);
        tryVerify(() => title());
        compare(page.contentY, page.originY);
    }

    function test_tab_goes_on_in_order_after_scrolling_back_and_forth() {
        World.begin();
        World.keepMany(60, 60);
        open();
        for (let i = 0; i < 12; ++i)
            keyClick(Qt.Key_PageDown);
        World.settle(page);
        for (let i = 0; i < 12; ++i)
            keyClick(Qt.Key_PageUp);
        World.settle(page);
        button("Gear: bookmark 59").forceActiveFocus(Qt.TabFocusReason);
        for (let i = 58; i >= 0; --i) {
            keyClick(Qt.Key_Tab);
            const focused = Find.first(page, item => Find.isButton(item) && item.activeFocus);
            compare(focused?.label, "Gear: bookmark " + i);
            const y = focused.mapToItem(page, 0, 0).y;
            verify(y >= 0 && y + focused.height <= page.height, focused.label);
        }
        keyClick(Qt.Key_Tab);
        verify(Find.first(page, item => Find.isButton(item) && item.activeFocus).label.startsWith("Lesson"));
    }

    function test_stays_where_it_is_when_something_changes() {
        World.begin();
        World.keepMany(300, 100);
        open();
        keyClick(Qt.Key_PageDown);
        World.settle(page);
        const place = page.contentY - page.originY;
        World.addNote("general", "general", "One more");
        World.settle(page);
        tryVerify(() => Math.abs(page.contentY - page.originY - place) <= 1);
    }

    function test_fits_a_narrow_display() {
        World.begin();
        World.addNote("lesson", "l1", "A note that is long enough to need several lines on a display as narrow as this one is.");
        World.setBookmark("gear", "a bookmark whose name is too long for a display as narrow as this one is, by far");
        open();
        page.width = 520;
        World.settle(page);
        for (const item of Find.all(page, item => Find.isText(item) && item.visible))
            verify(item.mapToItem(page, 0, 0).x + item.width <= page.width - 20, item.text);
    }
}
