import QtQuick
import QtTest
import Halvorin.Camera
import Halvorin.Kit
import Halvorin.Testing

TestCase {
    id: test
    name: "CameraPalette"
    when: windowShown

    Item {
        id: part
        readonly property hvColors c: CameraPalette.current
        readonly property color glow: c.glow
        property int turns: 0
        onGlowChanged: ++turns
    }
    Component {
        id: rings
        ProgressRing {
            c: CameraPalette.current
            done: 1
            total: 2
        }
    }

    function init() {
        World.begin();
        part.turns = 0;
    }

    function test_a_user_who_has_never_chosen_has_brass() {
        compare(String(CameraPalette.current.accent), "#8a6420");
        compare(String(CNUI.theme.accent), "#8a6420");
    }

    function test_follows_the_theme_at_once() {
        World.chooseTheme("rose-gold");
        compare(String(CameraPalette.current.accent), "#e0789a");
        compare(String(part.c.accent), "#e0789a");
        compare(part.turns, 1);
        World.chooseTheme("rose-gold");
        compare(part.turns, 1);
    }

    function test_keeps_the_display_under_every_theme() {
        const display = () => [part.c.oled, part.c.oledCard, part.c.oledText, part.c.oledDim].map(String);
        const before = display();
        World.chooseTheme("brushed-gray");
        compare(display(), before);
    }

    function test_redraws_what_takes_it() {
        const ring = createTemporaryObject(rings, test);
        World.chooseTheme("brushed-gray");
        compare(String(ring.c.accent), "#1f6fd1");
    }

    function test_knows_the_color_of_a_level() {
        const c = CameraPalette.current;
        compare(String(CameraPalette.levelColor("Beginner", c)), String(c.good));
        compare(String(CameraPalette.levelColor("INTERMEDIATE", c)), String(c.glow));
        compare(String(CameraPalette.levelColor("advanced", c)), String(c.warn));
        compare(String(CameraPalette.levelColor("Professional", c)), String(c.warn));
        compare(String(CameraPalette.levelColor("", c)), String(c.oledDim));
    }
}
