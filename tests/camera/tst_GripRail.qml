import QtQuick
import QtTest
import Halvorin.Camera
import Halvorin.Kit
import Halvorin.Shell
import Halvorin.Testing
import "../kit/Find.js" as Find

TestCase {
    id: test
    name: "GripRail"
    when: windowShown
    width: 400
    height: 800
    visible: true

    readonly property var screens: World.screens()

    Component {
        id: rails
        GripRail {
            width: implicitWidth
            height: 700
            c: CameraPalette.current
        }
    }
    property Item rail

    function init() {
        World.begin();
        rail = createTemporaryObject(rails, test);
    }
    function selectedTitles() {
        return Find.buttons(rail).filter(button => button.selected).map(button => button.label);
    }

    function test_is_214_wide() {
        compare(rail.implicitWidth, 214);
    }

    function test_has_a_button_for_each_screen_in_their_order() {
        const buttons = Find.buttons(rail);
        compare(buttons.map(button => button.label), screens.map(screen => screen.title));
        compare(buttons.map(button => button.symbol), screens.map(screen => screen.symbol));
        compare(buttons.map(button => button.tip), screens.map(screen => screen.title));
        for (let i = 1; i < buttons.length; ++i)
            verify(buttons[i].y > buttons[i - 1].y);
    }

    function test_goes_to_the_screen_that_is_pressed() {
        Find.buttons(rail).forEach((button, i) => {
            mouseClick(button);
            compare(AppModel.screen, screens[i].screen);
            compare(selectedTitles(), [screens[i].title]);
        });
    }

    function test_follows_the_screen_however_it_is_changed() {
        compare(selectedTitles(), ["Campus"]);
        AppModel.step(1);
        compare(selectedTitles(), ["Course"]);
        AppModel.openGear("tripod");
        compare(selectedTitles(), ["Gear Encyclopedia"]);
    }

    function test_pressing_the_selected_button_changes_nothing() {
        AppModel.openLesson("l2");
        mouseClick(Find.button(rail, "Course"));
        compare(AppModel.screen, HVScreen.Course);
        compare(World.lessonID(), "l2");
    }

    function test_cuts_no_title() {
        for (const button of Find.buttons(rail)) {
            for (const words of Find.all(button, Find.isText))
                verify(!words.truncated, button.label);
            // Within the plate, its rim included.
            const label = Find.text(button, button.label);
            verify(label.mapToItem(button, label.contentWidth, 0).x <= button.width - 2, button.label);
        }
    }

    function test_tells_assistive_technology_which_one_is_selected() {
        AppModel.screen = HVScreen.Lens;
        for (const button of Find.buttons(rail)) {
            compare(button.Accessible.name, button.label);
            verify(button.checkable);
            compare(button.checked, button.label === "Lens Lab");
        }
    }

    function test_takes_an_ampersand_in_a_title_for_no_key() {
        keyClick(Qt.Key_Space, Qt.AltModifier);
        compare(AppModel.screen, HVScreen.Home);
    }

    function test_answers_the_keyboard() {
        const button = Find.button(rail, "History");
        button.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Return);
        compare(AppModel.screen, HVScreen.History);
    }
}
