import QtQuick
import QtTest
import Halvorin.Camera
import Halvorin.Kit
import Halvorin.Simulator
import Halvorin.Testing
import "../../kit/Find.js" as Find

TestCase {
    id: test
    name: "StepDial"
    when: windowShown
    width: 400
    height: 300
    visible: true

    Component {
        id: dials
        StepDial {
            x: 50
            y: 50
            title: "Aperture"
            c: CameraPalette.current
            scaleOfStops: LabScales.aperture
            value: 4
            onMoved: stop => { test.asked.push(stop); value = stop; }
        }
    }
    property Item dial
    property var asked

    function init() {
        World.begin();
        asked = [];
        dial = createTemporaryObject(dials, test);
        World.settle(dial);
    }
    function slider() {
        return Find.first(dial, item => item.shown !== undefined);
    }
    function button(words) {
        return Find.button(dial, words);
    }
    // The middle of the handle when it stands at the n-th of `count` places.
    function handleX(n, count) {
        return 11 + n / (count - 1) * (slider().width - 22);
    }
    function knobText() {
        return Find.texts(dial).find(text => text.startsWith("f/") || text.startsWith("1/"));
    }

    function test_shows_title_and_stop() {
        compare(Find.texts(dial), ["Aperture", "−", "f/4", "+"]);
        compare(slider().width, 190);
    }

    function test_shows_the_nearest_stop_of_a_value_between_two() {
        dial.value = 4.1;
        compare(knobText(), "f/4");
        compare(asked, []);
    }

    function test_steps_by_its_buttons() {
        mouseClick(button("+"));
        compare(dial.value, 4.5);
        mouseClick(button("−"));
        mouseClick(button("−"));
        compare(dial.value, 3.5);
        compare(button("+").tip, "Step up");
        compare(button("−").tip, "Step down");
    }

    function test_steps_from_the_nearest_stop() {
        dial.value = 4.1;
        mouseClick(button("+"));
        compare(dial.value, 4.5);
    }

    function test_goes_no_further_than_its_ends() {
        dial.value = 32;
        mouseClick(button("+"));
        compare(dial.value, 32);
        verify(button("+").enabled);
        dial.value = 1;
        mouseClick(button("−"));
        compare(dial.value, 1);
        verify(button("−").enabled);
    }

    function test_runs_from_the_longest_time_on_the_left_to_the_shortest_on_the_right() {
        dial.scaleOfStops = LabScales.shutter;
        dial.value = 0.008;
        mouseClick(slider(), 1, 11);
        compare(dial.value, 30);
        mouseClick(button("−"));
        compare(dial.value, 30);
        mouseClick(slider(), 189, 11);
        compare(dial.value, 1 / 8000);
        mouseClick(button("+"));
        compare(dial.value, 1 / 8000);
        mouseClick(button("−"));
        compare(dial.value, 1 / 6400);
    }

    function test_follows_a_drag_from_stop_to_stop() {
        const from = handleX(12, 31);
        mousePress(slider(), from, 11);
        compare(asked, []);
        mouseMove(slider(), handleX(13, 31), 11);
        mouseMove(slider(), handleX(13, 31) + 1, 11);
        mouseMove(slider(), handleX(20, 31), 11);
        mouseRelease(slider(), handleX(20, 31), 11);
        compare(asked, [4.5, 10]);
        mouseMove(slider(), from, 11);
        compare(dial.value, 10);
    }

    function test_is_held_where_it_is_gripped() {
        mousePress(slider(), handleX(12, 31) + 6, 11);
        compare(asked, []);
        mouseMove(slider(), handleX(12, 31) + 7, 11);
        compare(asked, []);
        mouseRelease(slider(), handleX(12, 31) + 7, 11);
    }

    function test_follows_a_drag_beyond_its_ends_to_the_end() {
        mousePress(slider(), handleX(12, 31), 11);
        mouseMove(slider(), 900, 11);
        compare(dial.value, 32);
        mouseMove(slider(), -900, 11);
        compare(dial.value, 1);
        mouseRelease(slider(), -900, 11);
    }

    function test_turns_with_the_wheel_over_slider_and_knob() {
        mouseWheel(slider(), 100, 11, 0, 120);
        compare(dial.value, 4.5);
        mouseWheel(slider(), 100, 11, 0, -240);
        compare(dial.value, 3.5);
        const knob = Find.text(dial, knobText());
        const place = knob.mapToItem(dial, knob.width / 2, knob.height / 2);
        mouseWheel(dial, place.x, place.y, 0, 120);
        compare(dial.value, 4);
    }

    function test_adds_up_the_turns_of_a_fine_wheel() {
        for (let i = 0; i < 3; ++i)
            mouseWheel(slider(), 100, 11, 0, 30);
        compare(dial.value, 4);
        mouseWheel(slider(), 100, 11, 0, 30);
        compare(dial.value, 4.5);
    }

    function test_answers_the_keyboard() {
        slider().forceActiveFocus(Qt.TabFocusReason);
        for (const row of [[Qt.Key_Right, 4.5], [Qt.Key_Up, 5], [Qt.Key_Left, 4.5], [Qt.Key_Down, 4],
                           [Qt.Key_PageUp, 13], [Qt.Key_PageDown, 4], [Qt.Key_End, 32], [Qt.Key_Home, 1]]) {
            keyClick(row[0]);
            compare(dial.value, row[1]);
        }
    }

    function test_leaves_keys_of_shortcuts_alone() {
        slider().forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Right, Qt.ControlModifier);
        keyClick(Qt.Key_Right, Qt.AltModifier);
        compare(asked, []);
    }

    function test_is_reached_by_tab_in_reading_order() {
        button("−").forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Tab);
        verify(button("+").activeFocus);
        keyClick(Qt.Key_Tab);
        verify(slider().activeFocus);
        verify(slider().visualFocus);
    }

    function test_shows_the_focus_that_came_by_keyboard() {
        mouseClick(slider(), handleX(12, 31), 11);
        verify(slider().activeFocus);
        verify(!slider().visualFocus);
        const without = grabImage(dial);
        keyClick(Qt.Key_Right);
        keyClick(Qt.Key_Left);
        verify(slider().visualFocus);
        verify(!grabImage(dial).equals(without));
        button("+").forceActiveFocus(Qt.TabFocusReason);
        verify(!slider().visualFocus);
    }

    function test_is_a_slider_with_its_stop_as_text() {
        compare(slider().Accessible.role, Accessible.Slider);
        compare(slider().Accessible.name, "Aperture");
        compare(slider().Accessible.description, "f/4");
        compare(slider().stepSize, 0.1); // f/1.1 from f/1
        dial.scaleOfStops = LabScales.shutter;
        fuzzyCompare(slider().stepSize, 1 / 6400 - 1 / 8000, 1e-6);
        dial.scaleOfStops = LabScales.aperture;
        compare(button("+").Accessible.name, "Aperture: step up");
        compare(button("−").Accessible.name, "Aperture: step down");
    }

    function test_wears_the_glow_of_the_theme() {
        compare(String(Find.text(dial, "f/4").color), String(CameraPalette.current.glow));
    }

    function test_cuts_no_stop() {
        for (const scale of [LabScales.aperture, LabScales.shutter, LabScales.iso, LabScales.focalLength]) {
            dial.scaleOfStops = scale;
            for (const stop of scale.stops) {
                dial.value = stop;
                const words = Find.text(dial, scale.label(stop));
                verify(words, scale.label(stop));
                verify(words.paintedWidth <= words.width + 0.5, words.text);
            }
        }
    }
}
