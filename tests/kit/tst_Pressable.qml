import QtQuick
import QtTest
import Halvorin.Kit
import "Find.js" as Find

TestCase {
    id: test
    name: "Pressable"
    when: windowShown
    width: 400
    height: 300
    visible: true

    Component {
        id: pressables
        Pressable {
            property int clicks: 0
            width: 100
            height: 40
            onClicked: ++clicks
        }
    }
    property Item button

    function init() {
        button = createTemporaryObject(pressables, test);
    }

    function test_answers_the_keyboard_data() {
        return [
            { tag: "space", key: Qt.Key_Space },
            { tag: "return", key: Qt.Key_Return },
            { tag: "enter", key: Qt.Key_Enter },
        ];
    }
    function test_answers_the_keyboard(data) {
        button.forceActiveFocus(Qt.TabFocusReason);
        keyClick(data.key);
        compare(button.clicks, 1);
        keyClick(data.key);
        compare(button.clicks, 2);
    }

    function test_answers_no_other_key() {
        button.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_A);
        keyClick(Qt.Key_Escape);
        compare(button.clicks, 0);
    }

    function test_answers_the_mouse() {
        mouseClick(button);
        compare(button.clicks, 1);
        mousePress(button);
        verify(button.down);
        mouseRelease(button);
        verify(!button.down);
        compare(button.clicks, 2);
    }

    function test_a_press_that_ends_elsewhere_does_nothing() {
        mousePress(button);
        mouseMove(button, 200, 200);
        mouseRelease(button, 200, 200);
        compare(button.clicks, 0);
    }

    function test_answers_nothing_while_it_is_disabled() {
        button.enabled = false;
        mouseClick(button);
        button.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Space);
        keyClick(Qt.Key_Return);
        compare(button.clicks, 0);
    }

    function test_can_be_reached_with_the_tab_key() {
        const second = createTemporaryObject(pressables, test, { y: 60 });
        button.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Tab);
        verify(second.activeFocus);
        keyClick(Qt.Key_Backtab);
        verify(button.activeFocus);
    }

    function test_has_the_name_of_its_label() {
        button.label = "Open";
        button.tip = "Opens the course";
        compare(button.Accessible.role, Accessible.Button);
        compare(button.Accessible.name, "Open");
        compare(button.Accessible.description, "Opens the course");
    }

    function test_without_label_has_the_name_of_its_tip() {
        button.tip = "Clear search";
        compare(button.Accessible.name, "Clear search");
    }

    function test_takes_an_ampersand_in_its_label_for_no_key() {
        button.label = "Shadows & Light";
        keyClick(Qt.Key_Space, Qt.AltModifier);
        button.label = "Q&A";
        keyClick(Qt.Key_A, Qt.AltModifier);
        compare(button.clicks, 0);
        compare(button.Accessible.name, "Q&A");
    }

    function test_shows_the_focus_that_came_by_keyboard_alone() {
        const rings = () => Find.all(button, item => item.gap !== undefined && item.strokeFrom !== undefined);
        compare(rings().length, 0);
        button.forceActiveFocus(Qt.MouseFocusReason);
        compare(rings().length, 0);
        button.focus = false;
        button.forceActiveFocus(Qt.TabFocusReason);
        compare(rings().length, 1);
        button.focus = false;
        compare(rings().length, 0);
    }

    function test_ring_lies_around_it() {
        button.cornerRadius = 12;
        button.focusInk = "#40c080";
        button.forceActiveFocus(Qt.TabFocusReason);
        const ring = Find.first(button, item => item.gap !== undefined);
        compare(ring.mapToItem(button, 0, 0), Qt.point(-3, -3));
        compare([ring.width, ring.height], [106, 46]);
        compare(ring.radius, 15);
        compare(String(ring.strokeFrom), "#40c080");
    }

    function tips() {
        const overlay = test.Window.window.contentItem.parent ?? test.Window.window.contentItem;
        return Find.texts(overlay).filter(text => text.startsWith("Opens"));
    }

    function test_tells_its_tip_under_the_pointer() {
        button.label = "Open";
        button.tip = "Opens the course";
        mouseMove(button, 300, 200);
        compare(tips(), []);
        mouseMove(button, 50, 20);
        tryVerify(() => tips().length === 1);
        button.tip = "Opens the lesson";
        compare(tips(), ["Opens the lesson"]);
        mouseMove(button, 300, 200);
        tryVerify(() => tips().length === 0);
    }

    function test_tells_its_tip_in_the_window_into_which_it_comes() {
        failOnWarning(/./);
        button.label = "Open";
        button.tip = "Opens the course";
        mouseMove(button, 50, 20);
        button.parent = null;
        verify(button.hovered);
        button.parent = test;
        tryVerify(() => tips().length === 1);
    }

    function test_is_as_large_as_its_content_and_padding() {
        const plain = createTemporaryQmlObject("import QtQuick; import Halvorin.Kit; Pressable { horizontalPadding: 14; verticalPadding: 7; contentItem: Item { implicitWidth: 50; implicitHeight: 20 } }", test);
        compare(plain.implicitWidth, 78);
        compare(plain.implicitHeight, 34);
    }
}
