import QtQuick
import QtTest
import Halvorin.Diagrams

TestCase {
    id: test
    name: "GearDiagramView"
    when: windowShown
    width: 500
    height: 400
    visible: true

    Component {
        id: diagram
        GearDiagramView {}
    }

    function test_is_spoken_with_blanks_for_hyphens_data() {
        return [
            { tag: "one word", kind: "tripod", name: "Diagram: tripod" },
            { tag: "two words", kind: "ball-head", name: "Diagram: ball head" },
            { tag: "unknown", kind: "no-such-thing", name: "Diagram: no such thing" },
            { tag: "wrong case", kind: "Tripod", name: "Diagram: Tripod" },
            { tag: "number", kind: "film-35", name: "Diagram: film 35" },
            { tag: "place marker", kind: "%1-%2", name: "Diagram: %1 %2" },
            { tag: "empty", kind: "", name: "Diagram: " },
        ];
    }
    function test_is_spoken_with_blanks_for_hyphens(data) {
        const item = createTemporaryObject(diagram, test, { kind: data.kind });
        compare(item.Accessible.role, Accessible.Graphic);
        compare(item.Accessible.name, data.name);
    }

    function test_is_spoken_anew_when_the_kind_changes() {
        const item = createTemporaryObject(diagram, test, { kind: "tripod" });
        item.kind = "light-stand";
        compare(item.Accessible.name, "Diagram: light stand");
    }

    function test_shows_the_sensor_for_an_unknown_kind() {
        const item = createTemporaryObject(diagram, test, { kind: "sensor" });
        const sensor = grabImage(item);
        item.kind = "tripod";
        verify(!grabImage(item).equals(sensor));
        item.kind = "Tripod";
        verify(grabImage(item).equals(sensor));
        item.kind = "no-such-thing";
        verify(grabImage(item).equals(sensor));
    }

    function test_takes_its_height_from_its_width() {
        const item = createTemporaryObject(diagram, test, { kind: "tripod", width: 500 });
        compare(item.height, 325);
        item.width = 42;
        fuzzyCompare(item.height, 27.3, 1e-9);
    }

    function test_draws_in_the_colors_that_it_is_given() {
        const item = createTemporaryObject(diagram, test,
            { kind: "gray-card", glow: "#ff0000", label: "#0000ff" });
        // The left edge of the card, which covers most of its pixels, and a callout's dot.
        const image = grabImage(item);
        fuzzyCompare(image.red(130, 150), 255, 8);
        fuzzyCompare(image.blue(130, 150), 0, 40);
        compare(image.blue(270, 200), 255);
        compare(image.red(270, 200), 0);
    }
}
