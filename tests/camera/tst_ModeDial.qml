import QtQuick
import QtTest
import Halvorin.Camera
import Halvorin.Kit
import Halvorin.Shell
import Halvorin.Testing
import "../kit/Find.js" as Find

TestCase {
    id: test
    name: "ModeDial"
    when: windowShown
    width: 400
    height: 200
    visible: true

    Component {
        id: dials
        ModeDial {
            c: CameraPalette.current
        }
    }
    readonly property var screens: World.screens()
    property Item previous
    property Item dial
    property Item next

    function init() {
        World.begin();
        [previous, dial, next] = Find.buttons(createTemporaryObject(dials, test));
    }

    function test_dial_and_right_arrow_do_the_same() {
        const reached = item => {
            AppModel.screen = HVScreen.Home;
            const titles = [];
            for (let i = 0; i <= screens.length; ++i) {
                mouseClick(item);
                titles.push(AppModel.screenTitle);
            }
            return titles;
        };
        const byDial = reached(dial);
        const titles = screens.map(screen => screen.title);
        compare(byDial, [...titles.slice(1), ...titles.slice(0, 2)]);
        compare(reached(next), byDial);
    }

    function test_left_arrow_turns_back_and_wraps() {
        const titles = [];
        for (let i = 0; i < screens.length; ++i) {
            mouseClick(previous);
            titles.push(AppModel.screenTitle);
        }
        compare(titles, screens.map(screen => screen.title).reverse());
    }

    function test_shows_the_short_title_of_the_screen() {
        const shown = [];
        for (let i = 0; i < screens.length; ++i) {
            shown.push(...Find.texts(dial));
            mouseClick(dial);
        }
        compare(shown, screens.map(screen => screen.shortTitle));
    }

    function test_sets_the_short_title_so_that_it_fits() {
        for (let i = 0; i < screens.length; ++i) {
            const words = Find.first(dial, Find.isText);
            compare(words.font.pointSize, 9);
            compare(words.font.weight, Font.Black);
            compare(String(words.color), String(CameraPalette.current.glow));
            // The smooth disc inside the knurled rim.
            verify(words.contentWidth <= 40, words.text);
            mouseClick(dial);
        }
    }

    function test_has_its_tips() {
        compare(previous.tip, Words.localized("Previous screen (⌘[)"));
        compare(next.tip, Words.localized("Next screen (⌘])"));
        compare(dial.tip, "Mode dial: Campus. Click to turn to the next screen.");
        AppModel.screen = HVScreen.Lens;
        compare(dial.tip, "Mode dial: Lens Lab. Click to turn to the next screen.");
    }

    function test_is_known_by_its_screen() {
        compare(dial.Accessible.name, "Mode dial, Campus");
        AppModel.screen = HVScreen.Gear;
        compare(dial.Accessible.name, "Mode dial, Gear Encyclopedia");
        compare(previous.Accessible.name, previous.tip);
        compare(next.Accessible.name, next.tip);
    }

    function test_turns_once_round_through_all_screens() {
        const face = Find.first(dial, item => String(item).startsWith("DialFace"));
        const part = 360 / screens.length;
        screens.forEach((screen, i) => {
            AppModel.screen = screen.screen;
            tryVerify(() => Math.abs(face.turn - i * part) % 360 < 0.01);
        });
    }

    function test_is_58_square() {
        compare(dial.width, 58);
        compare(dial.height, 58);
    }

    function test_answers_the_keyboard() {
        dial.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Space);
        compare(AppModel.screen, HVScreen.Course);
        keyClick(Qt.Key_Return);
        compare(AppModel.screen, HVScreen.Exposure);
    }
}
