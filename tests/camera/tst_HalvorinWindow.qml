import QtQuick
import QtTest
import Halvorin.Camera
import Halvorin.Kit
import Halvorin.Shell
import Halvorin.Testing
import Halvorin.Window
import "../kit/Find.js" as Find

TestCase {
    id: test
    name: "HalvorinWindow"
    when: windowShown

    Component {
        id: windows
        HalvorinWindow {
            visible: true
        }
    }
    property HalvorinWindow program

    function init() {
        World.begin();
        program = windows.createObject(null);
        verify(program);
        program.requestActivate();
        tryCompare(program, "active", true);
        // The menus, and their keys with them, come after the first picture.
        tryVerify(() => program.menuBar.count > 0);
    }
    function cleanup() {
        // Closing it would end the program; it is taken away instead.
        program.destroy();
        wait(0);
    }

    function camera() {
        return Find.first(program.contentItem, item => String(item).startsWith("MainWindow_"));
    }
    function dialog() {
        return Find.first(program.contentItem.parent, item => item.visible && item.Accessible.role === Accessible.AlertMessage);
    }
    function typeIntoSearch(keys) {
        keyClick("f", Qt.ControlModifier);
        for (const key of keys)
            keyClick(key);
    }

    function test_has_its_title_and_its_sizes() {
        compare(program.title, "CRVN Halvorin");
        compare(program.width, 1440);
        compare(program.height, 920 + program.menuBar.height);
        compare(program.minimumWidth, 900);
        compare(program.minimumHeight, 620 + program.menuBar.height);
    }

    function test_shows_the_camera_in_all_of_it() {
        compare(camera().width, 1440);
        compare(camera().height, 920);
    }

    function test_keeps_the_cameras_smallest_layout_at_its_own_smallest_size() {
        program.width = 900;
        program.height = 620 + program.menuBar.height;
        tryCompare(camera(), "width", 1240);
        compare(camera().height, 800);
    }

    function test_magnifies_the_camera() {
        keyClick("+", Qt.ControlModifier);
        compare(ZoomControl.zoom, 1.15);
        fuzzyCompare(camera().width, 1440 / 1.15, 0.001);
        fuzzyCompare(camera().height, 800, 0.001);
        keyClick("=", Qt.ControlModifier);
        compare(ZoomControl.zoom, 1.3);
        compare(camera().width, 1240);
        keyClick("-", Qt.ControlModifier);
        compare(ZoomControl.zoom, 1.15);
        keyClick("0", Qt.ControlModifier);
        compare(ZoomControl.zoom, 1);
    }

    function test_has_its_menus() {
        const titles = [];
        for (let i = 0; i < program.menuBar.count; ++i)
            titles.push(Words.withoutMnemonic(program.menuBar.menuAt(i).title));
        compare(titles, ["File", "Edit", "View", "Go", "Theme", "Help"]);
    }

    function menu(title) {
        const bar = program.menuBar;
        return [...Array(bar.count).keys()].map(i => bar.menuAt(i)).find(menu => Words.withoutMnemonic(menu.title) === title);
    }
    function rows(title) {
        const list = menu(title);
        return [...Array(list.count).keys()].map(i => list.itemAt(i)).filter(row => row.text !== undefined);
    }

    function test_has_the_entries_of_its_menus_with_their_keys() {
        const shown = title => rows(title).map(row => [row.Accessible.name, row.keys]);
        compare(shown("File"), [["New Note", "Ctrl+N"], ["Export My Notes & Progress…", "Ctrl+Shift+E"], ["Quit", "Ctrl+Q"]]);
        compare(shown("View"), [["Zoom In", "Ctrl++"], ["Zoom Out", "Ctrl+-"], ["Actual Size (100%)", "Ctrl+0"], ["Zoom Level", ""],
                                ["Full Screen", "F11"]]);
        const help = shown("Help");
        compare(help[0], ["CRVN Halvorin Help", "Ctrl+Shift+/"]);
        compare(help.slice(-4).map(row => row[0]),
                ["Themes and interface zoom", "About Corvane", "About CRVN Halvorin", "Corvane Website"]);
    }

    function test_starts_a_note_by_key_on_any_screen() {
        AppModel.screen = HVScreen.Gear;
        keyClick("n", Qt.ControlModifier);
        compare(World.noteTarget(), "general general");
        compare(AppModel.screen, HVScreen.Gear);
        AppModel.dismissNote();
    }

    function test_disables_what_can_not_be_done() {
        compare(rows("Edit").filter(row => row.enabled && row.Accessible.name !== "Paste").length, 0);
        typeIntoSearch("iso");
        const usable = () => rows("Edit").filter(row => row.enabled).map(row => row.Accessible.name);
        verify(usable().includes("Undo"));
        verify(usable().includes("Select All"));
        verify(!usable().includes("Cut"));
        keyClick("a", Qt.ControlModifier);
        verify(usable().includes("Cut"));
    }

    function test_edits_by_menu_what_had_the_focus_before_the_menu() {
        typeIntoSearch("iso");
        keyClick("e", Qt.AltModifier);
        tryVerify(() => menu("Edit").opened);
        rows("Edit").find(row => row.Accessible.name === "Select All").action.trigger();
        rows("Edit").find(row => row.Accessible.name === "Cut").action.trigger();
        compare(AppModel.globalQuery, "");
        keyClick(Qt.Key_Escape);
        tryVerify(() => !menu("Edit").opened);
    }

    function test_offers_no_way_on_in_a_course_without_lessons() {
        verify(rows("Go").find(row => row.Accessible.name === "Continue the Course").enabled);
        cleanup();
        World.begin("empty");
        program = windows.createObject(null);
        program.requestActivate();
        tryCompare(program, "active", true);
        tryVerify(() => program.menuBar.count > 0);
        verify(!rows("Go").find(row => row.Accessible.name === "Continue the Course").enabled);
    }

    // What the Tab key reaches, from the search field round to it again.
    function tabRound(key) {
        typeIntoSearch("");
        const names = [];
        const first = program.activeFocusItem;
        do {
            names.push(program.activeFocusItem.Accessible.name);
            verify(names[names.length - 1] !== "");
            keyClick(key);
        } while (program.activeFocusItem !== first && names.length < 200);
        return names;
    }

    function test_tab_goes_as_the_eye_does() {
        const names = tabRound(Qt.Key_Tab);
        const screens = World.screens().map(screen => screen.title);
        const plate = ["Search lessons, gear, history, videos…", "Previous screen (Ctrl+[)", "Mode dial, Campus",
                       "Next screen (Ctrl+])", "Continue the course"];
        compare(names.slice(0, plate.length + screens.length), [...plate, ...screens]);
        const display = names.slice(plate.length + screens.length);
        compare(display.slice(0, 3), ["Start lesson 1", "Exposure Lab", "Encyclopedia"]);
        verify(display.length > 3);
        compare(tabRound(Qt.Key_Backtab).reverse().slice(0, -1), names.slice(1));
    }

    function test_arrows_walk_the_rail_and_turn_the_dial() {
        const rail = Find.button(camera(), "Course");
        rail.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Down);
        compare(program.activeFocusItem.Accessible.name, "Exposure Lab");
        keyClick(Qt.Key_Return);
        compare(AppModel.screen, HVScreen.Exposure);
        keyClick(Qt.Key_End);
        compare(program.activeFocusItem.Accessible.name, "My Notes & Progress");
        const dial = Find.first(camera(), item => Find.isButton(item) && item.Accessible.name.startsWith("Mode dial"));
        dial.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Right);
        compare(AppModel.screen, HVScreen.Lens);
        keyClick(Qt.Key_Left);
        keyClick(Qt.Key_Left);
        compare(AppModel.screen, HVScreen.Course);
    }

    function test_searches_by_a_slash() {
        keyClick("/");
        for (const key of "iso/")
            keyClick(key);
        compare(AppModel.globalQuery, "iso/");
    }

    function test_offers_seven_themes_and_checks_brass_for_a_user_who_has_never_chosen() {
        const bar = program.menuBar;
        const themes = [...Array(bar.count).keys()].map(i => bar.menuAt(i)).find(menu => Words.withoutMnemonic(menu.title) === "Theme");
        const rows = [...Array(themes.count).keys()].map(i => themes.itemAt(i));
        const checked = () => rows.filter(row => row.checked).map(row => row.Accessible.name);
        compare(rows.map(row => row.Accessible.name),
                ["Cobalt Gunmetal", "Candy Red Titanium", "Rose Gold", "Lavender Pearl", "Midnight Black", "Brushed Gray",
                 "Medium Format Black & Brass"]);
        compare(checked(), ["Medium Format Black & Brass"]);
        World.chooseTheme("brushed-gray");
        compare(checked(), ["Brushed Gray"]);
    }

    function test_goes_to_each_screen_by_its_digit() {
        for (const digit of "987654321") {
            keyClick(digit, Qt.ControlModifier);
            compare(AppModel.screen, Number(digit) - 1);
        }
        keyClick("3", Qt.ControlModifier);
        compare(AppModel.screen, HVScreen.Exposure);
    }

    function test_turns_through_the_screens_by_key() {
        keyClick(Qt.Key_BracketLeft, Qt.ControlModifier);
        compare(AppModel.screen, HVScreen.Notes);
        keyClick(Qt.Key_BracketRight, Qt.ControlModifier);
        compare(AppModel.screen, HVScreen.Home);
    }

    function test_continues_the_course_by_key() {
        keyClick("k", Qt.ControlModifier);
        compare(AppModel.screen, HVScreen.Course);
        compare(World.lessonID(), "l1");
    }

    function test_searches_by_key() {
        typeIntoSearch("iso");
        compare(AppModel.globalQuery, "iso");
        keyClick(Qt.Key_Escape);
        compare(AppModel.globalQuery, "");
    }

    function test_keeps_its_keys_while_something_is_typed() {
        typeIntoSearch("iso");
        keyClick("4", Qt.ControlModifier);
        compare(AppModel.screen, HVScreen.Lens);
        compare(AppModel.globalQuery, "iso");
    }

    function test_keeps_its_keys_while_a_lesson_is_being_read() {
        AppModel.openLesson("l1");
        const words = () => Find.first(camera(), item => item.textDocument !== undefined);
        tryVerify(() => words() && words().visible && words().height > 0);
        World.settle(camera());
        mouseClick(words(), 30, 10);
        verify(words().activeFocus);
        keyClick(Qt.Key_BracketRight, Qt.ControlModifier);
        compare(AppModel.screen, HVScreen.Exposure);
    }

    function test_gives_the_keyboard_back_after_a_message() {
        typeIntoSearch("i");
        World.tell("The disk is full.");
        tryVerify(() => dialog() && Find.button(dialog(), "OK").activeFocus);
        keyClick(Qt.Key_Return);
        tryVerify(() => !dialog());
        keyClick("s");
        compare(AppModel.globalQuery, "is");
    }

    function test_stands_on_the_ground_of_the_theme() {
        compare(String(program.color), "#0c0b0a");
        World.chooseTheme("rose-gold");
        compare(String(program.color), "#24161d");
    }

    function field() {
        return Find.first(program.contentItem.parent, item => item.selectAll !== undefined && item.readOnly === false && item.echoMode === undefined);
    }
    function question() {
        return Find.text(program.contentItem.parent, "Close without saving your note?");
    }
    function writeNote() {
        AppModel.newNote("lesson", "l1");
        tryVerify(() => field()?.activeFocus);
        keyClick("a");
        compare(field().text, "a");
    }

    function test_asks_before_an_unsaved_note_goes_with_it() {
        writeNote();
        program.close();
        tryVerify(() => question());
        verify(program.visible);
        tryVerify(() => Find.button(program.contentItem.parent, "Keep Writing").activeFocus);
        keyClick(Qt.Key_Return);
        tryVerify(() => !question());
        compare(field().text, "a");
        verify(AppModel.draftIsUnsaved);
        // It asks again the next time.
        program.close();
        tryVerify(() => question());
        keyClick(Qt.Key_Escape);
        tryVerify(() => !question());
        verify(program.visible);
        compare(field().text, "a");
    }

    function test_a_note_can_be_given_up_for_closing() {
        writeNote();
        program.close();
        tryVerify(() => question());
        Find.button(program.contentItem.parent, "Close Without Saving").clicked();
        tryVerify(() => !program.visible);
        verify(!AppModel.editsNote);
        compare(World.noteBodies(), []);
    }

    function test_closes_unasked_over_an_editor_without_new_words() {
        AppModel.newNote("lesson", "l1");
        tryVerify(() => field()?.activeFocus);
        program.close();
        tryVerify(() => !program.visible);
        AppModel.dismissNote();
    }
}
