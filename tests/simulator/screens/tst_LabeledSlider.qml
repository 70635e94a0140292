import QtQuick
import QtTest
import Halvorin.Camera
import Halvorin.Simulator
import Halvorin.Testing
import "../../kit/Find.js" as Find

TestCase {
    id: test
    name: "LabeledSlider"
    when: windowShown
    width: 400
    height: 300
    visible: true

    Component {
        id: sliders
        LabeledSlider {
            x: 20
            y: 50
            width: 300
            title: "Background distance"
            c: CameraPalette.current
            from: 10.5
            to: 200
            unit: "m"
            value: 30
            onMoved: distance => { test.asked.push(distance); value = distance; }
        }
    }
    property Item labeled
    property var asked

    function init() {
        World.begin();
        asked = [];
        labeled = createTemporaryObject(sliders, test);
        World.settle(labeled);
    }
    function slider() {
        return Find.first(labeled, item => item.shown !== undefined);
    }

    function test_shows_title_and_reading() {
        compare(Find.texts(labeled), ["Background distance", "30 m"]);
        labeled.value = 9.94;
        compare(Find.texts(labeled), ["Background distance", "9.9 m"]);
    }

    function test_reads_a_value_beyond_its_ends_as_it_is() {
        labeled.value = 5;
        compare(Find.texts(labeled)[1], "5.0 m");
        compare(asked, []);
        labeled.value = 500;
        compare(Find.texts(labeled)[1], "500 m");
        compare(asked, []);
    }

    function test_leaves_a_value_that_its_bound_has_overtaken() {
        labeled.from = 50;
        compare(labeled.value, 30);
        compare(asked, []);
    }

    function test_moves_from_the_end_that_a_value_is_beyond() {
        labeled.value = 5;
        slider().forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Right);
        compare(labeled.value, 12);
    }

    function test_runs_evenly_from_end_to_end() {
        mouseClick(slider(), slider().width / 2, 11);
        fuzzyCompare(labeled.value, (10.5 + 200) / 2, 0.5);
        mouseClick(slider(), 1, 11);
        compare(labeled.value, 10.5);
        mouseClick(slider(), slider().width - 1, 11);
        compare(labeled.value, 200);
    }

    function test_moves_by_the_last_digit_of_its_reading() {
        slider().forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Right);
        compare(labeled.value, 31);
        keyClick(Qt.Key_PageUp);
        compare(labeled.value, 41);
        keyClick(Qt.Key_Home);
        compare(labeled.value, 10.5);
        keyClick(Qt.Key_End);
        compare(labeled.value, 200);
        mouseWheel(slider(), 50, 11, 0, -120);
        compare(labeled.value, 199);
        labeled.from = 0;
        labeled.value = 5;
        mouseWheel(slider(), 50, 11, 0, 120);
        compare(labeled.value, 5.1);
    }

    function test_is_a_slider_with_its_reading_as_text() {
        compare(slider().Accessible.role, Accessible.Slider);
        compare(slider().Accessible.name, "Background distance");
        compare(slider().Accessible.description, "30 m");
    }

    function test_draws_nothing_wild_where_both_ends_are_one() {
        labeled.from = 200;
        compare(labeled.value, 30);
        mouseClick(slider(), 50, 11);
        compare(labeled.value, 200);
    }
}
