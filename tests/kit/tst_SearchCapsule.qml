import QtQuick
import QtTest
import Halvorin.Kit
import "Find.js" as Find

TestCase {
    id: test
    name: "SearchCapsule"
    when: windowShown
    width: 400
    height: 300
    visible: true

    Component {
        id: capsules
        SearchCapsule {
            id: capsule
            property string query: ""
            width: 300
            prompt: "Search everything"
            text: query
            onEdited: text => capsule.query = text
        }
    }
    Component {
        id: escapes
        FocusScope {
            property int escapes: 0
            width: 300
            height: 60
            Keys.onEscapePressed: ++escapes
        }
    }

    property Item capsule
    property Item field

    function init() {
        capsule = createTemporaryObject(capsules, test);
        field = Find.field(capsule);
    }
    function clearButton() {
        return Find.button(capsule, "Clear search");
    }
    function type(keys) {
        capsule.focusField();
        for (const key of keys)
            keyClick(key);
    }

    function test_shows_its_prompt_only_while_it_is_empty() {
        verify(Find.text(capsule, "Search everything"));
        type("a");
        verify(!Find.text(capsule, "Search everything"));
        keyClick(Qt.Key_Backspace);
        verify(Find.text(capsule, "Search everything"));
    }

    function test_hands_on_what_is_typed() {
        type("lens");
        compare(capsule.query, "lens");
        keyClick(Qt.Key_Backspace);
        compare(capsule.query, "len");
    }

    function test_shows_what_its_owner_sets() {
        capsule.query = "aperture";
        compare(field.text, "aperture");
        type("x");
        capsule.query = "shutter";
        compare(field.text, "shutter");
        capsule.query = "";
        compare(field.text, "");
    }

    function test_begins_at_the_left_in_every_language() {
        capsule.query = "عدسة";
        compare(field.effectiveHorizontalAlignment, TextInput.AlignLeft);
    }

    function test_takes_markup_as_text() {
        type("<b>");
        compare(capsule.query, "<b>");
        compare(field.text, "<b>");
    }

    function test_has_a_clear_button_only_with_text() {
        verify(!clearButton());
        capsule.query = "a";
        verify(clearButton());
        capsule.query = "";
        verify(!clearButton());
        capsule.query = " ";
        verify(clearButton());
    }

    function test_the_clear_button_empties_the_text_and_keeps_the_field() {
        capsule.query = "lens";
        mouseClick(clearButton());
        compare(capsule.query, "");
        compare(field.text, "");
        verify(capsule.editing);
        verify(!clearButton());
        keyClick("x");
        compare(capsule.query, "x");
    }

    function test_the_clear_button_has_a_name() {
        capsule.query = "lens";
        compare(clearButton().Accessible.name, "Clear search");
        compare(clearButton().tip, "Clear search");
    }

    function test_the_field_is_known_by_its_prompt() {
        compare(field.Accessible.name, "Search everything");
    }

    function test_escape_clears() {
        type("lens");
        keyClick(Qt.Key_Escape);
        compare(capsule.query, "");
        compare(field.text, "");
    }

    function test_escape_goes_on_when_there_is_nothing_to_clear() {
        const around = createTemporaryObject(escapes, test);
        const inner = createTemporaryObject(capsules, around);
        inner.focusField();
        keyClick("a");
        keyClick(Qt.Key_Escape);
        compare(around.escapes, 0);
        keyClick(Qt.Key_Escape);
        compare(around.escapes, 1);
    }

    function test_focusing_selects_what_is_there() {
        capsule.query = "lens";
        capsule.focusField();
        verify(capsule.editing);
        keyClick("a");
        compare(capsule.query, "a");
    }

    function test_setting_the_text_from_outside_is_no_edit() {
        const spy = createTemporaryQmlObject("import QtTest; SignalSpy { signalName: 'edited' }", test);
        spy.target = capsule;
        capsule.query = "lens";
        compare(spy.count, 0);
        type("x");
        compare(spy.count, 1);
    }
}
