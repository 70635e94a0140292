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

    Pressable {
        id: before
        x: 390
        y: 290
        width: 5
        height: 5
    }
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
    // A pane of 300 × 500 that stands in one of 200 × 100, both larger than what shows them.
    Component {
        id: nests
        ScrollSurface {
            readonly property ScrollSurface inner: inner
            readonly property Item farButton: far
            width: 200
            height: 100
            contentWidth: 400
            contentHeight: 300
            ScrollSurface {
                id: inner
                width: 350
                height: 250
                contentWidth: 350
                contentHeight: 1000
                Pressable {
                    id: far
                    x: 280
                    y: 900
                    width: 50
                    height: 20
                }
            }
        }
    }
    // As the search field stands on the camera.
    Component {
        id: fields
        ScrollSurface {
            width: 200
            height: 100
            contentWidth: 600
            contentHeight: 100
            function focusField(): void {
                capsule.focusField();
            }
            SearchCapsule {
                id: capsule
                x: 430
                y: 30
                width: 150
                prompt: "Search"
                text: ""
            }
        }
    }
    SignalSpy {
        id: frames
        target: test.Window.window
        signalName: "frameSwapped"
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

    function test_tab_goes_on_from_it_to_its_first_control() {
        surface.forceActiveFocus();
        keyClick(Qt.Key_Tab);
        verify(!before.activeFocus && !surface.activeFocus && !surface.farButton.activeFocus);
        keyClick(Qt.Key_Tab);
        verify(surface.farButton.activeFocus);
    }
    function test_backtab_goes_from_it_to_the_control_before() {
        surface.forceActiveFocus();
        keyClick(Qt.Key_Backtab);
        verify(before.activeFocus);
    }
    function test_follows_the_arrow_keys_sideways() {
        surface.contentWidth = 290;
        surface.forceActiveFocus();
        keyClick(Qt.Key_Right);
        compare(surface.contentX, 48);
        keyClick(Qt.Key_Right);
        compare(surface.contentX, 90);
        keyClick(Qt.Key_Left);
        compare(surface.contentX, 42);
        keyClick(Qt.Key_Left);
        compare(surface.contentX, 0);
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

    function test_follows_the_wheel_sideways_data() {
        return [
            { tag: "tilted", x: -120, y: 0, modifiers: Qt.NoModifier },
            { tag: "with Shift", x: 0, y: -120, modifiers: Qt.ShiftModifier },
        ];
    }
    function test_follows_the_wheel_sideways(data) {
        surface.contentWidth = 290;
        mouseWheel(surface, 100, 50, data.x, data.y, Qt.NoButton, data.modifiers);
        compare(surface.contentX, 60);
        mouseWheel(surface, 100, 50, data.x, data.y, Qt.NoButton, data.modifiers);
        compare(surface.contentX, 90);
        mouseWheel(surface, 100, 50, -data.x, -data.y, Qt.NoButton, data.modifiers);
        compare(surface.contentX, 30);
        compare(surface.contentY, 0);
    }

    function test_hands_the_wheel_on_at_its_end() {
        const outer = createTemporaryObject(nests, test);
        const inner = outer.inner;
        mouseWheel(outer, 100, 50, 0, -120);
        compare([inner.contentY, outer.contentY], [60, 0]);
        inner.contentY = 750;
        mouseWheel(outer, 100, 50, 0, -120);
        compare([inner.contentY, outer.contentY], [750, 60]);
        mouseWheel(outer, 100, 50, 0, 120);
        compare([inner.contentY, outer.contentY], [690, 60]);
        inner.contentY = 0;
        mouseWheel(outer, 100, 50, 0, 120);
        compare([inner.contentY, outer.contentY], [0, 0]);
    }

    function test_hands_on_the_wheel_of_a_direction_that_it_does_not_scroll() {
        const outer = createTemporaryObject(nests, test);
        mouseWheel(outer, 100, 50, -120, 0);
        compare(outer.contentX, 60);
        mouseWheel(outer, 100, 50, 0, -120, Qt.NoButton, Qt.ShiftModifier);
        compare(outer.contentX, 120);
        compare(outer.inner.contentY, 0);
    }

    function test_hands_its_keys_on_at_its_end() {
        const outer = createTemporaryObject(nests, test);
        const inner = outer.inner;
        inner.forceActiveFocus();
        keyClick(Qt.Key_Down);
        compare([inner.contentY, outer.contentY], [48, 0]);
        keyClick(Qt.Key_Right);
        compare([inner.contentX, outer.contentX], [0, 48]);
        keyClick(Qt.Key_End);
        compare([inner.contentY, outer.contentY], [750, 0]);
        keyClick(Qt.Key_End);
        compare([inner.contentY, outer.contentY], [750, 200]);
        keyClick(Qt.Key_PageUp);
        compare([inner.contentY, outer.contentY], [548, 200]);
        keyClick(Qt.Key_Home);
        keyClick(Qt.Key_Up);
        compare([inner.contentY, outer.contentY], [0, 152]);
    }

    function test_is_not_dragged_by_the_mouse() {
        mouseDrag(surface, 100, 80, 0, -60);
        compare(surface.contentY, 0);
    }

    // A finger that goes from one place to another in small steps.
    function swipe(item, from, to) {
        const steps = 5;
        const touch = touchEvent(item);
        touch.press(0, item, from.x, from.y).commit();
        for (let i = 1; i <= steps; ++i) {
            // Every picture takes in what the finger did since the last one.
            frames.clear();
            touch.move(0, item, from.x + (to.x - from.x) * i / steps, from.y + (to.y - from.y) * i / steps).commit();
            tryVerify(() => frames.count > 0);
        }
        touch.release(0, item, to.x, to.y).commit();
    }

    function test_follows_a_finger() {
        surface.contentWidth = 600;
        swipe(surface, Qt.point(100, 80), Qt.point(100, 10));
        verify(surface.contentY > 30);
        compare(surface.contentX, 0);
        tryCompare(surface, "moving", false);
        const y = surface.contentY;
        swipe(surface, Qt.point(180, 50), Qt.point(60, 50));
        verify(surface.contentX > 60);
        compare(surface.contentY, y);
    }

    function test_follows_a_finger_that_begins_on_a_button() {
        surface.farButton.y = 70;
        swipe(surface, Qt.point(25, 80), Qt.point(25, 10));
        verify(surface.contentY > 30);
    }

    function test_hands_a_finger_on_at_its_end() {
        const outer = createTemporaryObject(nests, test);
        outer.inner.contentY = 750;
        swipe(outer, Qt.point(100, 80), Qt.point(100, 10));
        compare(outer.inner.contentY, 750);
        verify(outer.contentY > 30);
        tryCompare(outer, "moving", false);
        swipe(outer, Qt.point(180, 50), Qt.point(60, 50));
        verify(outer.contentX > 60);
    }

    function test_is_not_dragged_by_the_mouse_after_a_finger_either() {
        swipe(surface, Qt.point(100, 60), Qt.point(100, 40));
        tryCompare(surface, "moving", false);
        const y = surface.contentY;
        mouseDrag(surface, 100, 80, 0, -60);
        compare(surface.contentY, y);
    }

    function test_reveals_what_the_tab_key_reaches() {
        surface.farButton.forceActiveFocus(Qt.TabFocusReason);
        // The button and a margin of 16 below it.
        compare(surface.contentY, 400 + 20 + 16 - 100);
    }

    function test_reveals_sideways_what_the_tab_key_reaches() {
        surface.contentWidth = 700;
        surface.farButton.x = 600;
        surface.farButton.forceActiveFocus(Qt.TabFocusReason);
        compare(surface.contentX, 600 + 50 + 16 - 200);
        surface.contentX = 500;
        surface.farButton.x = 300;
        surface.farButton.focus = false;
        surface.farButton.forceActiveFocus(Qt.BacktabFocusReason);
        compare(surface.contentX, 300 - 16);
    }

    function test_reveals_the_beginning_of_what_is_larger_than_itself() {
        surface.farButton.y = 150;
        surface.farButton.height = 200;
        surface.farButton.forceActiveFocus(Qt.TabFocusReason);
        compare(surface.contentY, 150 - 16);
    }

    function test_reveals_within_panes_that_stand_in_each_other() {
        const outer = createTemporaryObject(nests, test);
        outer.farButton.forceActiveFocus(Qt.TabFocusReason);
        compare(outer.inner.contentY, 900 + 20 + 16 - 250);
        // Now it stands at 280, 214 in the outer pane.
        compare(outer.contentX, 280 + 50 + 16 - 200);
        compare(outer.contentY, 214 + 20 + 16 - 100);
    }

    function test_reveals_a_field_that_a_shortcut_focuses() {
        const item = createTemporaryObject(fields, test);
        item.focusField();
        // With all of the capsule around it.
        compare(item.contentX, 580 + 16 - 200);
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
        surface.contentWidth = 500;
        surface.contentX = 300;
        surface.contentWidth = 400;
        compare(surface.contentX, 200);
        surface.width = 350;
        compare(surface.contentX, 50);
    }
}
