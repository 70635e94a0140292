import QtQuick
import QtQuick.Templates as T
import QtTest
import Halvorin.Camera
import Halvorin.Kit
import Halvorin.Testing
import "../kit/Find.js" as Find

TestCase {
    id: test
    name: "GlowPicker"
    when: windowShown
    width: 500
    height: 400
    visible: true

    ListModel {
        id: lights
        ListElement { optionID: "sun"; title: "Full <b>sun</b>" }
        ListElement { optionID: "shade"; title: "Open shade" }
        ListElement { optionID: "moon"; title: "Moonlight & stars" }
    }
    Component {
        id: pickers
        GlowPicker {
            x: 40
            y: 40
            title: "Light"
            model: lights
            chosenID: "shade"
            c: CameraPalette.current
            onChosen: optionID => { test.asked.push(optionID); chosenID = optionID; }
        }
    }
    Component {
        id: deafPickers
        GlowPicker {
            title: "Light"
            model: lights
            chosenID: "shade"
            c: CameraPalette.current
        }
    }
    property GlowPicker picker
    property var asked

    function init() {
        World.begin();
        asked = [];
        picker = createTemporaryObject(pickers, test);
        World.settle(picker);
    }
    function cleanup() {
        picker.popup.close();
        ZoomControl.actualSize();
    }
    function open() {
        mouseClick(picker);
        tryVerify(() => picker.popup.opened && picker.popup.contentItem.itemAtIndex(2));
    }
    function rows() {
        const list = picker.popup.contentItem;
        return [0, 1, 2].map(i => list.itemAtIndex(i));
    }

    function test_shows_what_is_chosen() {
        compare(Find.texts(picker), ["Open shade"]);
        picker.chosenID = "sun";
        compare(Find.texts(picker), ["Full <b>sun</b>"]);
        picker.chosenID = "nothing of the kind";
        compare(Find.texts(picker), []);
        compare(asked, []);
    }

    function test_offers_all_rows() {
        open();
        compare(rows().map(row => Find.texts(row)[0]), ["Full <b>sun</b>", "Open shade", "Moonlight & stars"]);
        compare(rows().map(row => row.Accessible.name), ["Full <b>sun</b>", "Open shade", "Moonlight & stars"]);
    }

    function test_chooses_the_row_that_is_clicked() {
        open();
        mouseClick(rows()[2]);
        compare(asked, ["moon"]);
        tryVerify(() => !picker.popup.visible);
        compare(Find.texts(picker), ["Moonlight & stars"]);
    }

    function test_keeps_to_what_its_owner_says() {
        const deaf = createTemporaryObject(deafPickers, test);
        World.settle(deaf);
        deaf.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Up);
        compare(deaf.displayText, "Open shade");
        deaf.chosenID = "moon";
        compare(deaf.displayText, "Moonlight & stars");
    }

    function test_answers_the_keyboard() {
        picker.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Down);
        compare(asked, ["moon"]);
        keyClick(Qt.Key_Up);
        keyClick(Qt.Key_Up);
        compare(asked, ["moon", "shade", "sun"]);
        keyClick(Qt.Key_Space);
        tryVerify(() => picker.popup.opened);
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Down);
        compare(asked.length, 3);
        keyClick(Qt.Key_Return);
        compare(asked, ["moon", "shade", "sun", "moon"]);
        tryVerify(() => !picker.popup.visible);
    }

    function test_escape_closes_it_and_chooses_nothing() {
        picker.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Space);
        tryVerify(() => picker.popup.opened);
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Escape);
        tryVerify(() => !picker.popup.visible);
        compare(asked, []);
        compare(picker.displayText, "Open shade");
    }

    function test_shows_the_focus_that_came_by_keyboard() {
        const before = grabImage(picker);
        picker.forceActiveFocus(Qt.TabFocusReason);
        verify(!grabImage(picker).equals(before));
    }

    function test_magnifies_its_list() {
        open();
        const height = rows()[0].height;
        const width = picker.popup.width;
        picker.popup.close();
        tryVerify(() => !picker.popup.visible);
        ZoomControl.chooseLevel(6);
        open();
        compare(rows()[0].height, 2 * height);
        compare(picker.popup.width, 2 * width);
    }

    function test_keeps_its_list_inside_the_window() {
        picker.y = test.height - picker.height;
        open();
        const list = picker.popup.contentItem;
        const bottom = list.mapToItem(test, 0, list.height).y;
        verify(bottom <= test.height, bottom);
    }

    function test_is_a_combo_box_known_by_its_title_and_choice() {
        compare(picker.Accessible.role, Accessible.ComboBox);
        compare(picker.Accessible.name, "Light");
        compare(picker.Accessible.description, "Open shade");
    }
}
