import QtQuick
import QtTest
import Halvorin.Kit
import "Find.js" as Find

TestCase {
    id: test
    name: "CNChromeButton"
    when: windowShown
    width: 300
    height: 200
    visible: true

    Component {
        id: buttons
        CNChromeButton {
            property int clicks: 0
            label: "Close"
            onClicked: ++clicks
        }
    }

    function plate(button) {
        return Find.first(button, child => child.fillFrom !== undefined);
    }

    function test_has_its_measures_data() {
        return [
            { tag: "usual", compact: false, size: 12.5, across: 16, down: 8 },
            { tag: "compact", compact: true, size: 11, across: 12, down: 5 },
        ];
    }
    function test_has_its_measures(data) {
        const button = createTemporaryObject(buttons, test, { compact: data.compact });
        const words = Find.text(button, "Close");
        compare(words.font.pointSize, data.size);
        compare(words.font.weight, Font.Bold);
        compare(String(words.color), "#ffffff");
        compare(button.implicitWidth, words.implicitWidth + 2 * data.across);
        compare(button.implicitHeight, words.implicitHeight + 2 * data.down);
        compare(plate(button).radius, button.height / 2);
    }

    function test_is_gray_metal_unless_prominent() {
        const button = createTemporaryObject(buttons, test);
        compare(String(plate(button).fillFrom), String(CNUI.gray(0.42)));
        compare(String(plate(button).fillTo), String(CNUI.gray(0.16)));
        button.prominent = true;
        compare(String(plate(button).fillFrom), String(Qt.alpha(CNUI.theme.accent, 0.95)));
        compare(String(plate(button).fillTo), String(Qt.alpha(CNUI.theme.accent, 0.6)));
    }

    function test_fades_while_it_is_pressed() {
        const button = createTemporaryObject(buttons, test);
        mousePress(button);
        compare(button.opacity, 0.75);
        mouseRelease(button);
        compare(button.opacity, 1);
        compare(button.clicks, 1);
    }
}
