import QtQuick
import QtTest
import Halvorin.Kit
import Halvorin.Camera
import "../kit/Find.js" as Find

TestCase {
    id: test
    name: "ProgressRing"
    when: windowShown
    width: 300
    height: 300
    visible: true

    Component {
        id: rings
        ProgressRing {
            c: CameraPalette.current
            width: 150
            height: 150
        }
    }

    function ring(done, total) {
        return createTemporaryObject(rings, test, { done: done, total: total });
    }
    function arc(item) {
        return Find.first(item, child => child.fraction !== undefined);
    }

    function test_shows_percentage_and_count_data() {
        return [
            { tag: "nothing of nothing", done: 0, total: 0, percent: "0%", fraction: 0 },
            { tag: "nothing yet", done: 0, total: 60, percent: "0%", fraction: 0 },
            { tag: "a third", done: 1, total: 3, percent: "33%", fraction: 1 / 3 },
            { tag: "two thirds", done: 2, total: 3, percent: "66%", fraction: 2 / 3 },
            { tag: "29 of 50", done: 29, total: 50, percent: "58%", fraction: 0.58 },
            { tag: "nearly all", done: 199, total: 200, percent: "99%", fraction: 0.995 },
            { tag: "all", done: 60, total: 60, percent: "100%", fraction: 1 },
        ];
    }
    function test_shows_percentage_and_count(data) {
        const item = ring(data.done, data.total);
        compare(Find.texts(item), [data.percent, data.done + " of " + data.total + " lessons"]);
        fuzzyCompare(arc(item).fraction, data.fraction, 1e-9);
    }

    function test_claims_no_percent_too_few_or_too_many() {
        for (let percent = 0; percent <= 100; ++percent) {
            compare(Progress.percent(percent, 100), percent);
            compare(Progress.percent(percent * 3, 300), percent);
            if (percent > 0)
                compare(Progress.percent(percent * 7 - 1, 700), percent - 1);
        }
    }

    function test_more_than_all_fills_the_ring_and_no_more() {
        // Finished lessons that have left the course still count.
        const item = ring(63, 60);
        compare(Find.texts(item), ["105%", "63 of 60 lessons"]);
        compare(arc(item).fraction, 1);
    }

    function test_something_of_nothing_is_nothing() {
        const item = ring(2, 0);
        compare(Find.texts(item), ["0%", "2 of 0 lessons"]);
        compare(arc(item).fraction, 0);
    }

    function test_is_one_element_with_one_name() {
        const item = ring(12, 60);
        compare(item.Accessible.name, "12 of 60 lessons finished");
        for (const words of Find.all(item, Find.isText))
            verify(!(words instanceof HvText));
    }

    function test_follows_its_numbers() {
        const item = ring(1, 4);
        item.done = 2;
        compare(Find.texts(item), ["50%", "2 of 4 lessons"]);
        compare(item.Accessible.name, "2 of 4 lessons finished");
        tryCompare(arc(item), "fraction", 0.5);
    }
}
