import QtQuick
import QtTest
import Halvorin.Camera

TestCase {
    id: test
    name: "ProgressBar"
    when: windowShown
    width: 300
    height: 100
    visible: true

    Component {
        id: bars
        ProgressBar {
            c: CameraPalette.current
            width: 200
            height: 4
        }
    }

    function test_fills_its_share_data() {
        return [
            { tag: "nothing", done: 0, total: 4, width: 0 },
            { tag: "a quarter", done: 1, total: 4, width: 50 },
            { tag: "all", done: 4, total: 4, width: 200 },
            { tag: "more than all", done: 5, total: 4, width: 200 },
            { tag: "nothing of nothing", done: 0, total: 0, width: 0 },
        ];
    }
    function test_fills_its_share(data) {
        const item = createTemporaryObject(bars, test, { done: data.done, total: data.total });
        const fill = item.children[0];
        compare(item.width, 200);
        compare(String(item.fillFrom), String(Qt.alpha(CameraPalette.current.glow, 0.12)));
        compare(fill.width, data.width);
        compare(fill.visible, data.width > 0);
        compare(fill.height, 4);
        compare(String(fill.fillFrom), String(CameraPalette.current.glow));
    }
}
