import QtQuick
import QtTest
import Halvorin.Kit

TestCase {
    id: test
    name: "CRVNThemeCommands"
    when: windowShown
    width: 400
    height: 300
    visible: true

    Component {
        id: menus
        CRVNThemeCommands {}
    }
    ThemeList {
        id: themes
    }
    SignalSpy {
        id: themeSpy
        target: CNUI
        signalName: "themeChanged"
    }

    property CRVNThemeCommands menu

    function init() {
        themes.choose("cobalt-gunmetal");
        menu = createTemporaryObject(menus, test);
        themeSpy.clear();
    }

    function titles() {
        const titles = [];
        for (let i = 0; i < menu.count; ++i)
            titles.push(menu.itemAt(i).text);
        return titles;
    }
    function checkedTitles() {
        return titles().filter((title, i) => menu.itemAt(i).checked);
    }

    function test_has_a_row_for_each_theme_in_its_order() {
        compare(titles(), ["Cobalt Gunmetal", "Candy Red Titanium", "Rose Gold", "Lavender Pearl", "Midnight Black", "Brushed Gray"]);
        compare(menu.title, "&Theme");
        for (let i = 0; i < menu.count; ++i)
            verify(menu.itemAt(i).checkable);
    }

    function test_checks_the_selected_theme_alone() {
        compare(checkedTitles(), ["Cobalt Gunmetal"]);
        themes.choose("rose-gold");
        compare(checkedTitles(), ["Rose Gold"]);
    }

    function test_selects_the_theme_that_is_pressed() {
        menu.popup(10, 10);
        tryVerify(() => menu.opened);
        mouseClick(menu.itemAt(2));
        compare(String(CNUI.theme.accent), "#e0789a");
        compare(checkedTitles(), ["Rose Gold"]);
        compare(themeSpy.count, 1);
    }

    function test_keeps_the_check_when_the_selected_theme_is_pressed_again() {
        menu.popup(10, 10);
        tryVerify(() => menu.opened);
        mouseClick(menu.itemAt(0));
        compare(checkedTitles(), ["Cobalt Gunmetal"]);
        // The row goes on following the selection.
        themes.choose("brushed-gray");
        compare(checkedTitles(), ["Brushed Gray"]);
        themes.choose("cobalt-gunmetal");
        compare(checkedTitles(), ["Cobalt Gunmetal"]);
    }

    function test_checks_no_row_for_a_theme_that_is_gone() {
        themes.choose("a-theme-of-old");
        compare(checkedTitles(), []);
        // What is shown is the default.
        compare(String(CNUI.theme.accent), "#2f7bf2");
    }
}
