import QtQuick
import QtTest
import Halvorin.Camera
import Halvorin.Shell
import Halvorin.Testing
import "../kit/Find.js" as Find

TestCase {
    id: test
    name: "TopPlate"
    when: windowShown
    width: 1300
    height: 200
    visible: true

    Component {
        id: plates
        TopPlate {
            width: 1168
            height: implicitHeight
            c: CameraPalette.current
        }
    }
    property Item plate

    function init() {
        World.begin();
        plate = createTemporaryObject(plates, test);
    }

    function test_is_78_high() {
        compare(plate.implicitHeight, 78);
    }

    function test_names_the_camera_and_its_screen() {
        verify(Find.text(plate, "CRVN HALVORIN"));
        verify(Find.text(plate, "MEDIUM FORMAT · 6×4.5 · CAMPUS"));
        AppModel.screen = HVScreen.Workflow;
        verify(Find.text(plate, "MEDIUM FORMAT · 6×4.5 · WORKFLOWS & SOFTWARE"));
    }

    function test_bears_the_badge() {
        verify(Find.text(plate, "CRVN"));
    }

    function test_searches_everything() {
        const field = Find.field(plate);
        compare(field.Accessible.name, "Search lessons, gear, history, videos…");
        plate.focusSearch();
        keyClick("i");
        keyClick("s");
        keyClick("o");
        compare(AppModel.globalQuery, "iso");
        AppModel.globalQuery = "";
        compare(field.text, "");
    }

    function test_nothing_on_it_overlaps_at_the_smallest_size_data() {
        return [{ tag: "smallest", width: 1168 }, { tag: "large", width: 1290 }];
    }
    function test_nothing_on_it_overlaps_at_the_smallest_size(data) {
        plate.width = data.width;
        AppModel.screen = HVScreen.Workflow; // the longest title
        World.settle(plate);
        const words = Find.text(plate, "MEDIUM FORMAT · 6×4.5 · WORKFLOWS & SOFTWARE");
        const field = Find.first(plate, child => child.prompt !== undefined);
        const [previous, dial, next, shutter] = Find.buttons(plate);
        const right = item => item.mapToItem(plate, item.width, 0).x;
        const left = item => item.mapToItem(plate, 0, 0).x;
        verify(right(words) <= left(field));
        verify(field.width <= 380);
        verify(right(field) <= left(previous));
        verify(right(previous) <= left(dial));
        verify(right(dial) <= left(next));
        verify(right(next) <= left(shutter));
        verify(right(shutter) <= data.width - 22 + 0.01);
    }
}
