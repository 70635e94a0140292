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
            titles.push(CNUI.withoutMnemonic(program.menuBar.menuAt(i).title));
        // Others may come; these are there in this order.
        const known = ["File", "Go", "View", "Theme"];
        compare(titles.filter(title => known.includes(title)), known);
    }

    function test_offers_seven_themes_and_checks_brass_for_a_user_who_has_never_chosen() {
        const bar = program.menuBar;
        const themes = [...Array(bar.count).keys()].map(i => bar.menuAt(i)).find(menu => CNUI.withoutMnemonic(menu.title) === "Theme");
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
