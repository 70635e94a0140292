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
    name: "MainWindow"
    when: windowShown
    width: 1440
    height: 920
    visible: true

    Component {
        id: cameras
        MainWindow {
            width: 1240
            height: 800
            focus: true
        }
    }
    // As a magnified camera stands in a window that is too small for it.
    Component {
        id: windows
        ScrollSurface {
            readonly property Item camera: inner
            width: 900
            height: 620
            contentWidth: inner.width
            contentHeight: inner.height
            MainWindow {
                id: inner
                width: 1240
                height: 800
                focus: true
            }
        }
    }
    property Item camera

    function init() {
        World.begin();
        camera = createTemporaryObject(cameras, test);
        camera.forceActiveFocus();
    }
    function cleanup() {
        AppModel.dismissMessage();
        tryVerify(() => !dialog());
    }

    // Components are known by the names of their files.
    function part(name, root) {
        return Find.first(root ?? camera, item => String(item).startsWith(name + "_") && item.visible);
    }
    function shownScreen() {
        return part("ScreenView").item;
    }
    function results() {
        return part("GlobalResults");
    }
    // What lies over the whole window while there is a message.
    function dialog() {
        let root = camera;
        while (root.parent)
            root = root.parent;
        return Find.first(root, item => item.visible && item.Accessible.role === Accessible.AlertMessage);
    }

    function test_is_put_together_of_a_cameras_parts() {
        for (const name of ["TopPlate", "GripRail", "OLEDScreen", "StrapSide", "ScreenView"])
            verify(part(name), name);
    }

    function test_gives_the_display_all_the_room_that_rail_and_strap_leave() {
        const rail = part("GripRail");
        const strap = part("StrapSide");
        const display = part("OLEDScreen");
        const plate = part("TopPlate");
        const place = item => item.mapToItem(camera, 0, 0, item.width, item.height);
        compare(place(plate), Qt.rect(36, 32, 1168, 78));
        compare(place(rail), Qt.rect(36, 124, 214, 644));
        compare(place(strap), Qt.rect(1178, 124, 26, 644));
        compare(place(display), Qt.rect(262, 124, 904, 644));

        camera.width = 1440;
        camera.height = 920;
        compare(place(display), Qt.rect(262, 124, 1104, 764));
    }

    function test_begins_on_campus() {
        compare(AppModel.screen, HVScreen.Home);
        verify(String(shownScreen()).startsWith("HomeView_"));
    }

    function test_reaches_every_screen() {
        const seen = [];
        for (const button of Find.buttons(part("GripRail"))) {
            mouseClick(button);
            compare(AppModel.screenTitle, button.label);
            const screen = shownScreen();
            verify(screen, button.label);
            verify(screen.visible, button.label);
            const type = World.screens()[seen.length].component.split(".").pop();
            verify(String(screen).startsWith(type + "_"), button.label);
            compare(screen.width, part("ScreenView").width, button.label);
            compare(screen.height, part("ScreenView").height, button.label);
            // The small course has no history, of which nothing is shown.
            verify(AppModel.screen === HVScreen.History || Find.texts(screen).length > 0, button.label);
            verify(Find.text(part("TopPlate"), "MEDIUM FORMAT · 6×4.5 · " + button.label.toUpperCase()));
            seen.push(button.label);
        }
        compare(seen, World.screens().map(screen => screen.title));
        verify(String(shownScreen()).startsWith("HomeView_") === false);
    }

    function test_a_click_on_the_camera_leaves_the_keyboard_with_the_screen() {
        const within = (item, place) => item && (item === place || within(item.parent, place));
        const press = ["Course", "Next screen (Ctrl+])", "Campus"];
        for (const label of press) {
            mouseClick(Find.button(camera, label));
            verify(within(test.Window.window.activeFocusItem, part("ScreenView")), label);
        }
        mouseClick(Find.button(part("TopPlate"), "Continue the course where you left off"));
        tryVerify(() => part("LessonReader"));
        verify(part("LessonReader").activeFocus);
    }

    // Buttons say what they say in `label`: in `text` an "&" would mark a key.
    function test_no_button_of_any_screen_has_a_text_that_marks_a_key() {
        for (const button of Find.buttons(part("GripRail"))) {
            mouseClick(button);
            verify(Find.buttons(camera).length > 9);
            compare(Find.buttons(camera).filter(item => item.text !== "").map(item => item.text), []);
        }
    }

    function test_shows_the_course_on_the_course_screen() {
        AppModel.openLesson("l1");
        verify(String(shownScreen()).startsWith("CourseView_"));
    }

    function test_the_wheel_over_the_display_scrolls_the_window_at_the_end_of_a_lesson() {
        AppModel.openLesson("l1");
        const around = createTemporaryObject(windows, test);
        tryVerify(() => part("LessonReader", around.camera));
        const reader = part("LessonReader", around.camera);
        reader.contentHeight = 3000; // longer than those of the small course
        const end = 3000 - reader.height;
        reader.contentY = end;
        mouseWheel(around, 700, 400, 0, -120);
        compare([reader.contentY, around.contentY], [end, 60]);
        mouseWheel(around, 700, 400, -120, 0);
        compare(around.contentX, 60);
    }

    function test_the_wheel_over_the_results_scrolls_the_window_and_nothing_under_them() {
        const around = createTemporaryObject(windows, test);
        AppModel.globalQuery = "light";
        tryVerify(() => part("GlobalResults", around.camera));
        const campus = Find.first(part("HomeView", around.camera).parent, item => item.contentY !== undefined);
        mouseWheel(around, 700, 400, 0, -120);
        compare([campus.contentY, around.contentY], [0, 60]);
    }

    function test_keeps_results_hidden_for_a_blank_query_data() {
        return [
            { tag: "nothing", query: "" },
            { tag: "a blank", query: " " },
            { tag: "blanks and a tab", query: "  \t " },
        ];
    }
    function test_keeps_results_hidden_for_a_blank_query(data) {
        AppModel.globalQuery = data.query;
        verify(!AppModel.showsResults);
        verify(!results());
    }

    function test_shows_results_while_there_is_a_query() {
        AppModel.globalQuery = "iso";
        verify(results());
        compare(results().width, part("ScreenView").width);
        compare(results().height, part("ScreenView").height);
        AppModel.globalQuery = "  iso";
        verify(results());
        AppModel.globalQuery = " ";
        verify(!results());
    }

    function test_shows_results_for_what_is_typed() {
        camera.focusSearch();
        keyClick(Qt.Key_Space);
        verify(!results());
        keyClick("i");
        verify(results());
        keyClick(Qt.Key_Backspace);
        verify(!results());
    }

    function test_escape_in_the_search_field_closes_the_results() {
        camera.focusSearch();
        keyClick("i");
        keyClick("s");
        keyClick(Qt.Key_Escape);
        compare(AppModel.globalQuery, "");
        verify(!results());
    }

    function test_escape_anywhere_closes_the_results() {
        AppModel.globalQuery = "iso";
        Find.buttons(part("GripRail"))[0].forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Escape);
        compare(AppModel.globalQuery, "");
        verify(!results());
    }

    function hits() {
        return Find.buttons(results()).filter(button => button.kind !== undefined);
    }
    function test_arrows_lead_from_the_field_into_the_hits_and_back() {
        camera.focusSearch();
        keyClick("a");
        tryVerify(() => hits().length > 1);
        World.settle(camera);
        keyClick(Qt.Key_Down);
        verify(hits()[0].activeFocus);
        keyClick(Qt.Key_Up);
        verify(Find.field(part("TopPlate")).activeFocus);
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Escape);
        compare(AppModel.globalQuery, "");
        tryVerify(() => Find.first(part("ScreenView"), item => item.activeFocus) || part("ScreenView").activeFocus);
    }

    function test_tells_at_the_field_how_much_it_finds() {
        const field = Find.field(part("TopPlate"));
        compare(field.Accessible.description, "");
        AppModel.globalQuery = "tripod";
        tryCompare(field.Accessible, "description", "1 result");
        AppModel.globalQuery = "";
        tryCompare(field.Accessible, "description", "");
    }

    function test_keeps_the_screen_under_the_results_as_it_is() {
        AppModel.openModule("light");
        World.showQuiz("light");
        const screen = shownScreen();
        const quiz = part("QuizView");
        verify(quiz);
        AppModel.globalQuery = "iso";
        verify(results());
        verify(shownScreen() === screen);
        verify(part("QuizView") === quiz);
        AppModel.globalQuery = "";
        verify(part("QuizView") === quiz);
        compare(World.quizModuleID(), "light");
    }

    function test_lets_no_click_through_the_results() {
        AppModel.openModule("light");
        const lesson = Find.button(camera, "A hole in the dark");
        verify(lesson);
        AppModel.globalQuery = "iso";
        World.settle(camera);
        mouseClick(lesson);
        compare(World.lessonID(), "none");
        AppModel.globalQuery = "";
        mouseClick(lesson);
        compare(World.lessonID(), "l1");
    }

    function test_leaves_the_query_alone_when_the_screen_changes() {
        AppModel.globalQuery = "iso";
        mouseClick(Find.button(part("GripRail"), "Lens Lab"));
        compare(AppModel.globalQuery, "iso");
        verify(results());
    }

    function test_tells_a_message_until_it_is_dismissed() {
        verify(!dialog());
        World.tell("The <b>disk</b> is full.");
        tryVerify(() => dialog());
        compare(dialog().Accessible.name, "CRVN Halvorin. The <b>disk</b> is full.");
        const ok = Find.button(dialog(), "OK");
        tryVerify(() => ok.activeFocus);
        World.settle(camera);
        mouseClick(ok);
        tryVerify(() => !dialog());
        verify(!AppModel.hasMessage);
    }

    function test_dismisses_a_message_by_key_data() {
        return [
            { tag: "return", key: Qt.Key_Return },
            { tag: "escape", key: Qt.Key_Escape },
        ];
    }
    function test_dismisses_a_message_by_key(data) {
        World.tell("The disk is full.");
        tryVerify(() => dialog() && Find.button(dialog(), "OK").activeFocus);
        keyClick(data.key);
        tryVerify(() => !dialog());
        verify(!AppModel.hasMessage);
    }

    function test_a_later_message_replaces_the_one_that_is_shown() {
        World.tell("One.");
        tryVerify(() => dialog());
        World.tell("Two.");
        compare(dialog().Accessible.name, "CRVN Halvorin. Two.");
        AppModel.dismissMessage();
        tryVerify(() => !dialog());
        World.tell("Three.");
        tryVerify(() => dialog());
        compare(dialog().Accessible.name, "CRVN Halvorin. Three.");
    }

    function test_escape_dismisses_the_message_before_the_results() {
        AppModel.globalQuery = "iso";
        World.tell("The disk is full.");
        tryVerify(() => dialog() && Find.button(dialog(), "OK").activeFocus);
        keyClick(Qt.Key_Escape);
        tryVerify(() => !dialog());
        compare(AppModel.globalQuery, "iso");
        keyClick(Qt.Key_Escape);
        compare(AppModel.globalQuery, "");
    }

    function test_takes_its_colors_from_the_theme() {
        compare(String(camera.c.accent), "#8a6420");
        World.chooseTheme("brushed-gray");
        compare(String(camera.c.accent), "#1f6fd1");
        for (const name of ["TopPlate", "GripRail", "OLEDScreen", "StrapSide", "ScreenView"])
            compare(String(part(name).c.accent), "#1f6fd1", name);
    }

    function test_paints_metal_around_and_a_dark_display_within() {
        const colorAt = (image, x, y) => [image.red(x, y), image.green(x, y), image.blue(x, y)].map(level => level / 255);
        const near = (a, b) => a.every((level, i) => Math.abs(level - b[i]) <= 2 / 255);
        for (const theme of ["mf-black-brass", "brushed-gray"]) {
            World.chooseTheme(theme);
            const image = grabImage(camera);
            const c = camera.c;
            // The display's edge at the right, below the sheen of its glass.
            verify(near(colorAt(image, 1155, 700), [c.oled.r, c.oled.g, c.oled.b]), theme);
            // The middle of the top plate, between its two colors.
            const metal = colorAt(image, 450, 71);
            verify(metal.every((level, i) => level <= [c.bodyHi.r, c.bodyHi.g, c.bodyHi.b][i] + 2 / 255), theme);
            verify(metal.every((level, i) => level >= [c.body.r, c.body.g, c.body.b][i] - 2 / 255), theme);
        }
    }

    function test_works_without_a_course_and_without_a_store() {
        camera.destroy();
        wait(0);
        World.begin("empty", false);
        camera = createTemporaryObject(cameras, test);
        for (const button of Find.buttons(part("GripRail"))) {
            mouseClick(button);
            verify(shownScreen(), button.label);
        }
        AppModel.continueCourse();
        AppModel.toggleBookmark("lesson", "l1");
        verify(!AppModel.hasMessage);
    }
}
