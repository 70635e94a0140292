import QtQuick
import QtTest
import Halvorin.Shell
import Halvorin.Testing
import Halvorin.Window

TestCase {
    id: test
    name: "GoMenu"
    when: windowShown
    width: 600
    height: 500
    visible: true

    Component {
        id: menus
        GoMenu {}
    }
    property GoMenu menu

    function init() {
        World.begin();
        menu = createTemporaryObject(menus, test);
    }
    readonly property var screens: World.screens()

    function entries() {
        const items = [];
        for (let i = 0; i < menu.count; ++i)
            items.push(menu.itemAt(i));
        return items;
    }
    // What a row shows, which is its name as well.
    function shown(item) {
        return item.text === undefined ? "-" : item.Accessible.name;
    }
    function entry(title) {
        return entries().find(item => shown(item) === title);
    }

    function test_has_its_entries_in_their_order() {
        compare(entries().map(shown),
                [...screens.map(screen => screen.title), "-",
                 "Previous Screen", "Next Screen", "Continue the Course"]);
    }

    function test_has_its_keys() {
        compare(entries().slice(0, 9).map(item => item.action.shortcut),
                screens.slice(0, 9).map((screen, i) => "Ctrl+" + (i + 1)));
        compare(entry("Previous Screen").action.shortcut, "Ctrl+[");
        compare(entry("Next Screen").action.shortcut, "Ctrl+]");
        compare(entry("Continue the Course").action.shortcut, "Ctrl+K");
    }

    function test_goes_to_a_screen_and_leaves_the_search_open() {
        AppModel.globalQuery = "iso";
        entry("Exposure Lab").action.trigger();
        compare(AppModel.screen, HVScreen.Exposure);
        compare(AppModel.globalQuery, "iso");
        entries().slice(0, screens.length).forEach(item => {
            item.action.trigger();
            compare(AppModel.screenTitle, shown(item));
        });
    }

    function test_turns_at_both_ends() {
        entry("Previous Screen").action.trigger();
        compare(AppModel.screen, HVScreen.Notes);
        entry("Next Screen").action.trigger();
        compare(AppModel.screen, HVScreen.Home);
    }

    function test_continues_the_course() {
        World.finish(["l1"]);
        entry("Continue the Course").action.trigger();
        compare(AppModel.screen, HVScreen.Course);
        compare(World.lessonID(), "l2");
    }

    function test_continues_nothing_in_an_empty_course() {
        World.begin("empty");
        entry("Continue the Course").action.trigger();
        compare(AppModel.screen, HVScreen.Home);
        compare(World.lessonID(), "none");
    }
}
