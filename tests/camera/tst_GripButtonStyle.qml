import QtQuick
import QtTest
import Halvorin.Camera
import "../kit/Find.js" as Find

TestCase {
    id: test
    name: "GripButtonStyle"
    when: windowShown
    width: 400
    height: 200
    visible: true

    Component {
        id: buttons
        GripButtonStyle {
            width: 190
            c: CameraPalette.current
            label: "Campus"
            symbol: "building.columns"
        }
    }

    function label(button) {
        return Find.text(button, "Campus");
    }
    // The uppermost plate is the one that changes.
    function plate(button) {
        return Find.all(button, child => child.fillFrom !== undefined).pop();
    }

    function test_is_dark_metal_with_engraved_words() {
        const button = createTemporaryObject(buttons, test);
        compare(String(label(button).color), String(CameraPalette.current.engrave));
        compare(String(plate(button).fillFrom), "#333333");
        compare(String(plate(button).fillTo), String(Qt.rgba(0.07, 0.07, 0.07, 1)));
        compare(plate(button).radius, 10);
    }

    function test_is_lit_by_the_accent_when_selected() {
        const accent = CameraPalette.current.accent;
        const metal = Qt.rgba(0.07, 0.07, 0.07, 1);
        const button = createTemporaryObject(buttons, test, { selected: true });
        compare(String(label(button).color), String(CameraPalette.current.oledText));
        compare(String(plate(button).fillFrom), String(Qt.tint(metal, Qt.alpha(accent, 0.95))));
        compare(String(plate(button).fillTo), String(Qt.tint(metal, Qt.alpha(accent, 0.55))));
    }

    function test_has_its_measures() {
        const button = createTemporaryObject(buttons, test);
        compare(button.leftPadding, 12);
        compare(button.topPadding, 9);
        compare(label(button).font.pointSize, 12.5);
        compare(label(button).font.weight, Font.Bold);
        const symbol = Find.first(button, child => child.name === "building.columns");
        compare(symbol.pointSize, 14);
        compare(symbol.weight, Font.DemiBold);
        compare(symbol.x + symbol.width / 2, 10);
    }

    function test_gives_way_while_it_is_pressed() {
        const button = createTemporaryObject(buttons, test);
        mousePress(button);
        compare(button.scale, 0.97);
        compare(button.transformOrigin, Item.Center);
        mouseRelease(button);
        compare(button.scale, 1);
    }
}
