import QtQuick
import QtQuick.Templates as T
import QtTest
import Halvorin.Kit

TestCase {
    id: test
    name: "CNZoomCommands"
    when: windowShown
    width: 400
    height: 300
    visible: true

    Component {
        id: menus
        CNZoomCommands {}
    }

    property CNZoomCommands menu

    function init() {
        ZoomControl.actualSize();
        menu = createTemporaryObject(menus, test);
    }
    function cleanup() {
        ZoomControl.actualSize();
    }

    function test_has_its_entries_in_their_order() {
        const titles = [];
        for (let i = 0; i < menu.count; ++i)
            titles.push(menu.itemAt(i).text ?? "-");
        compare(titles, ["Zoom In", "Zoom Out", "Actual Size (100%)", "Zoom Level", "-"]);
        compare(menu.title, "&View");
    }

    function test_has_its_keys() {
        compare(menu.actionAt(0).shortcut, "Ctrl++");
        compare(menu.actionAt(1).shortcut, "Ctrl+-");
        compare(menu.actionAt(2).shortcut, "Ctrl+0");
    }

    function test_zooms_in_to_the_limit() {
        const reached = [];
        for (let i = 0; i < 8; ++i) {
            menu.actionAt(0).trigger();
            reached.push(ZoomControl.zoom);
        }
        compare(reached, [1.15, 1.3, 1.45, 1.6, 1.75, 1.9, 2, 2]);
        verify(menu.actionAt(0).enabled);
    }

    function test_zooms_out_to_the_limit() {
        menu.actionAt(1).trigger();
        compare(ZoomControl.zoom, 0.85);
        menu.actionAt(1).trigger();
        compare(ZoomControl.zoom, 0.85);
        verify(menu.actionAt(1).enabled);
    }

    function test_goes_back_to_the_actual_size() {
        menu.actionAt(0).trigger();
        menu.actionAt(2).trigger();
        compare(ZoomControl.zoom, 1);
    }

    function test_offers_every_level() {
        const levels = menu.menuAt(3);
        compare(levels.title, "Zoom Level");
        const titles = [];
        for (let i = 0; i < levels.count; ++i) {
            const item = levels.itemAt(i);
            titles.push(item.text);
            verify(!item.checkable);
            verify(item.enabled);
            item.triggered();
            compare(ZoomControl.levelTitles[i], item.text);
            fuzzyCompare(ZoomControl.zoom * 100, parseInt(item.text), 1e-9);
        }
        compare(titles, ["85%", "100%", "115%", "130%", "150%", "175%", "200%"]);
    }

    function test_a_level_that_is_not_there_changes_nothing() {
        ZoomControl.zoomIn();
        ZoomControl.chooseLevel(-1);
        ZoomControl.chooseLevel(7);
        compare(ZoomControl.zoom, 1.15);
    }
}
