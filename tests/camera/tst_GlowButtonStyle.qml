import QtQuick
import QtTest
import Halvorin.Kit
import Halvorin.Camera
import "../kit/Find.js" as Find

TestCase {
    id: test
    name: "GlowButtonStyle"
    when: windowShown
    width: 400
    height: 200
    visible: true

    Component {
        id: buttons
        GlowButtonStyle {
            property int clicks: 0
            c: CameraPalette.current
            label: "Bookmark"
            onClicked: ++clicks
        }
    }

    function label(button) {
        return Find.first(button, Find.isText);
    }
    function plate(button) {
        return Find.first(button, child => child.fillFrom !== undefined);
    }

    function test_has_its_measures_data() {
        return [
            { tag: "usual", compact: false, size: 12.5, across: 14, down: 7 },
            { tag: "compact", compact: true, size: 11.5, across: 10, down: 5 },
        ];
    }
    function test_has_its_measures(data) {
        const button = createTemporaryObject(buttons, test, { compact: data.compact });
        const words = label(button);
        compare(words.font.pointSize, data.size);
        compare(words.font.weight, Font.Bold);
        compare(button.leftPadding, data.across);
        compare(button.rightPadding, data.across);
        compare(button.topPadding, data.down);
        compare(button.bottomPadding, data.down);
        compare(button.implicitWidth, words.implicitWidth + 2 * data.across);
        compare(button.implicitHeight, words.implicitHeight + 2 * data.down);
        compare(plate(button).radius, 10);
        verify(!words.truncated);
    }

    function test_is_lit_when_prominent() {
        const glow = CameraPalette.current.glow;
        const button = createTemporaryObject(buttons, test, { prominent: true });
        compare(String(label(button).color), "#000000");
        compare(String(plate(button).fillFrom), String(glow));
        compare(String(plate(button).strokeFrom), String(Qt.alpha(glow, 0.55)));
    }

    function test_glows_faintly_otherwise() {
        const glow = CameraPalette.current.glow;
        const button = createTemporaryObject(buttons, test);
        compare(String(label(button).color), String(glow));
        compare(String(plate(button).fillFrom), String(Qt.alpha(glow, 0.1)));
        compare(String(plate(button).strokeFrom), String(Qt.alpha(glow, 0.55)));
        compare(plate(button).strokeWidth, 1);
    }

    function test_fades_while_it_is_pressed() {
        const button = createTemporaryObject(buttons, test);
        compare(button.opacity, 1);
        mousePress(button);
        compare(button.opacity, 0.7);
        mouseRelease(button);
        compare(button.opacity, 1);
        compare(button.clicks, 1);
    }

    function test_makes_room_for_its_symbol() {
        const plain = createTemporaryObject(buttons, test);
        const marked = createTemporaryObject(buttons, test, { symbol: "bookmark" });
        const symbol = Find.first(marked, child => child.name === "bookmark");
        verify(symbol.visible);
        compare(marked.implicitWidth, plain.implicitWidth + symbol.width + 6);
        verify(!label(marked).truncated);
        compare(Find.first(plain, child => child.name === "" && child.pointSize !== undefined).visible, false);
    }

    function test_has_its_label_for_a_name() {
        const button = createTemporaryObject(buttons, test, { symbol: "bookmark" });
        compare(button.Accessible.name, "Bookmark");
        verify(!(label(button) instanceof HvText));
    }

    function test_answers_the_keyboard() {
        const button = createTemporaryObject(buttons, test);
        button.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Return);
        keyClick(Qt.Key_Space);
        compare(button.clicks, 2);
    }
}
