import QtQuick
import QtTest
import Halvorin.Kit

TestCase {
    id: test
    name: "ScrollSurface"
    when: windowShown
    width: 400
    height: 300
    visible: true

    Component {
        id: surfaces
        ScrollSurface {
            readonly property Item farButton: far
            width: 200
            height: 100
            contentWidth: 200
            contentHeight: 500
            Pressable {
                width: 50
                height: 20
            }
            Pressable {
                id: far
                y: 400
                width: 50
                height: 20
            }
        }
    }
    property ScrollSurface surface

    function init() {
        surface = createTemporaryObject(surfaces, test);
    }

    function test_follows_the_arrow_and_page_keys() {
        surface.forceActiveFocus();
        keyClick(Qt.Key_Down);
        compare(surface.contentY, 48);
        keyClick(Qt.Key_Up);
        compare(surface.contentY, 0);
        keyClick(Qt.Key_PageDown);
        compare(surface.contentY, 52);
        keyClick(Qt.Key_PageUp);
        compare(surface.contentY, 0);
        keyClick(Qt.Key_End);
        compare(surface.contentY, 400);
        keyClick(Qt.Key_Home);
        compare(surface.contentY, 0);
    }

    function test_stops_at_both_ends() {
        surface.forceActiveFocus();
        keyClick(Qt.Key_Up);
        compare(surface.contentY, 0);
        keyClick(Qt.Key_End);
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_PageDown);
        compare(surface.contentY, 400);
    }

    function test_follows_the_wheel() {
        mouseWheel(surface, 100, 50, 0, -120);
        compare(surface.contentY, 60);
        mouseWheel(surface, 100, 50, 0, 240);
        compare(surface.contentY, 0);
    }

    function test_is_not_dragged_by_the_mouse() {
        mouseDrag(surface, 100, 80, 0, -60);
        compare(surface.contentY, 0);
    }

    function test_reveals_what_the_tab_key_reaches() {
        surface.farButton.forceActiveFocus(Qt.TabFocusReason);
        // The button and a margin of 16 below it.
        compare(surface.contentY, 400 + 20 + 16 - 100);
    }

    function test_stays_when_the_mouse_focuses_something() {
        surface.farButton.forceActiveFocus(Qt.MouseFocusReason);
        compare(surface.contentY, 0);
    }

    function test_is_never_left_beyond_the_end() {
        surface.contentY = 400;
        surface.contentHeight = 250;
        compare(surface.contentY, 150);
        surface.height = 200;
        compare(surface.contentY, 50);
        surface.contentHeight = 80;
        compare(surface.contentY, 0);
    }
}
