import QtQuick
import QtTest
import Halvorin.Camera
import "../kit/Find.js" as Find

TestCase {
    id: test
    name: "OLEDSearchField"
    when: windowShown
    width: 400
    height: 200
    visible: true

    Component {
        id: fields
        OLEDSearchField {
            id: search
            property string query: ""
            width: 300
            c: CameraPalette.current
            prompt: "Search"
            text: query
            onEdited: text => search.query = text
        }
    }
    property Item search

    function init() {
        search = createTemporaryObject(fields, test);
    }
    function clearButton() {
        return Find.button(search, "Clear search");
    }

    function test_shows_the_clear_button_only_with_text() {
        verify(!clearButton());
        search.focusField();
        keyClick("a");
        verify(clearButton());
        keyClick(Qt.Key_Backspace);
        verify(!clearButton());
    }

    function test_clears() {
        search.query = "tripod";
        mouseClick(clearButton());
        compare(search.query, "");
        compare(Find.field(search).text, "");
        verify(!clearButton());
    }

    function test_wears_the_colors_of_the_display() {
        search.query = "tripod";
        const c = CameraPalette.current;
        compare(String(Find.field(search).color), String(c.oledText));
        compare(Find.field(search).font.pointSize, 13);
        compare(Find.field(search).font.weight, Font.Medium);
        const capsule = Find.first(search, child => child.fillFrom !== undefined);
        compare(String(capsule.fillFrom), String(Qt.alpha(c.oled, 0.45)));
        const glass = Find.first(search, child => child.name === "magnifyingglass");
        compare(String(glass.ink), String(c.oledDim));
    }
}
