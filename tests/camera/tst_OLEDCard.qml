import QtQuick
import QtTest
import Halvorin.Camera
import "../kit/Find.js" as Find

TestCase {
    id: test
    name: "OLEDCard"
    when: windowShown
    width: 400
    height: 300
    visible: true

    Component {
        id: cards
        OLEDCard {
            readonly property Item inner: box
            c: CameraPalette.current
            Rectangle {
                id: box
                width: 100
                height: 40
            }
        }
    }

    function test_has_ten_points_of_padding_unless_told_otherwise() {
        const item = createTemporaryObject(cards, test);
        compare(item.padding, 10);
        compare(item.implicitWidth, 120);
        compare(item.implicitHeight, 60);
        compare(item.inner.mapToItem(item, 0, 0), Qt.point(10, 10));
        item.padding = 12;
        compare(item.implicitHeight, 64);
    }

    function test_is_a_card_in_the_colors_of_the_display() {
        const item = createTemporaryObject(cards, test);
        const plate = Find.first(item, child => child.fillFrom !== undefined);
        compare(plate.radius, 16);
        compare(String(plate.fillFrom), String(CameraPalette.current.oledCard));
        compare(String(plate.strokeFrom), String(Qt.alpha(CameraPalette.current.glow, 0.16)));
    }
}
