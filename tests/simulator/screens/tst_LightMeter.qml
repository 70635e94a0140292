import QtQuick
import QtTest
import Halvorin.Camera
import Halvorin.Simulator
import Halvorin.Testing
import "../../kit/Find.js" as Find

TestCase {
    id: test
    name: "LightMeter"
    when: windowShown
    width: 500
    height: 200
    visible: true

    Rectangle {
        anchors.fill: parent
        color: "black"
    }
    Component {
        id: meters
        LightMeter {
            x: 20
            y: 20
            width: 400
            offset: 0
            label: "Light meter: 0 stops"
            c: CameraPalette.current
        }
    }
    Component {
        id: triangles
        Triangle {
            width: 12
            height: 10
            ink: "white"
        }
    }
    property Item meter

    function init() {
        World.begin();
        meter = createTemporaryObject(meters, test);
        World.settle(meter);
    }
    function needle() {
        return Find.first(meter, item => item.ink !== undefined && item.glow !== undefined);
    }
    function needleX() {
        return needle().x + needle().width / 2;
    }

    function test_points_at_the_stops_of_its_scale() {
        for (const row of [[0, 200], [1, 264], [-1, 136], [3, 392], [-3, 8], [5, 392], [-9, 8]]) {
            meter.offset = row[0];
            compare(needleX(), row[1]);
        }
    }

    function test_stays_in_the_middle_without_a_number() {
        meter.offset = NaN;
        compare(needleX(), 200);
    }

    function test_colors_its_needle_by_how_far_off_it_is() {
        const c = CameraPalette.current;
        for (const row of [[0, c.good], [0.33, c.good], [0.34, c.warn], [-0.34, c.warn], [3, c.warn], [3.01, c.bad], [5, c.bad], [-5, c.bad]]) {
            meter.offset = row[0];
            compare(String(needle().ink), String(row[1]), "at " + row[0]);
        }
    }

    function test_has_a_tick_for_each_third_of_a_stop() {
        // A row of pixels through all ticks: lit stretches.
        meter.offset = -9;
        const image = grabImage(meter);
        let ticks = 0, strong = 0;
        let width = 0;
        for (let x = 0; x <= image.width; ++x) {
            const lit = x < image.width && image.red(x, 10) + image.green(x, 10) + image.blue(x, 10) > 700 * 0.4
                && image.alpha(x, 10) > 0;
            if (lit) {
                ++width;
            } else if (width > 0) {
                ++ticks;
                strong += width === 2;
                width = 0;
            }
        }
        compare(ticks, 19);
        compare(strong, 7);
    }

    function test_names_ends_and_middle() {
        compare(Find.texts(meter), ["−3", "0", "+3"]);
    }

    function test_tells_its_reading() {
        compare(meter.Accessible.name, "Light meter: 0 stops");
    }

    function test_points_upward() {
        const triangle = createTemporaryObject(triangles, test);
        const image = grabImage(triangle);
        const lit = (x, y) => image.red(x, y) > 128;
        verify(lit(6, 2));
        verify(!lit(1, 2));
        verify(!lit(10, 2));
        verify(lit(1, 9));
        verify(lit(10, 9));
    }
}
