import QtQuick
import QtTest
import Halvorin.Kit
import "Find.js" as Find

TestCase {
    id: test
    name: "CRVNHelpViewer"
    when: windowShown
    width: 860
    height: 600
    visible: true

    Component {
        id: viewers
        CRVNHelpViewer {
            width: 860
            height: 600
        }
    }
    property CRVNHelpViewer viewer

    // The application of these tests has no topics, so the kit's own two are all there are.
    function init() {
        viewer = createTemporaryObject(viewers, test);
        waitForRendering(viewer); // rows get their places as a frame is drawn
    }
    function rows() {
        return Find.buttons(viewer).filter(button => button.selected !== undefined);
    }
    function headings() {
        return Find.all(viewer, item => Find.isText(item) && item.Accessible.role === Accessible.Heading).map(item => item.text);
    }
    function type(words) {
        viewer.focusSearch();
        for (const key of words)
            keyClick(key);
    }

    function test_lists_all_topics_and_shows_the_first() {
        compare(rows().map(row => row.label), ["Themes and interface zoom", "About Corvane"]);
        compare(rows().map(row => row.selected), [true, false]);
        compare(headings(), ["Themes and interface zoom"]);
    }

    function test_opens_at_the_topic_that_it_is_given() {
        const other = createTemporaryObject(viewers, test, { initialTopic: "about" });
        compare(Find.buttons(other).filter(button => button.selected).map(row => row.label), ["About Corvane"]);
    }

    function test_shows_the_first_topic_for_one_that_there_is_not() {
        viewer.showTopic("about");
        compare(headings(), ["About Corvane"]);
        viewer.showTopic("no such topic");
        compare(headings(), ["Themes and interface zoom"]);
    }

    function test_makes_blocks_of_a_text() {
        const roles = Find.all(viewer, item => Find.isText(item) && item.visible).map(item => item.Accessible.role);
        verify(roles.includes(Accessible.ListItem));
        verify(roles.includes(Accessible.Paragraph));
    }

    function test_opens_a_topic_by_click_and_by_key() {
        mouseClick(rows()[1]);
        compare(headings(), ["About Corvane"]);
        rows()[0].forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Return);
        compare(headings(), ["Themes and interface zoom"]);
    }

    function test_walks_the_topics_by_arrow_keys_from_the_field_on() {
        viewer.focusSearch();
        keyClick(Qt.Key_Down);
        verify(rows()[0].activeFocus);
        keyClick(Qt.Key_Down);
        verify(rows()[1].activeFocus);
        keyClick(Qt.Key_Up);
        keyClick(Qt.Key_Up);
        verify(Find.field(viewer).activeFocus);
    }

    function test_finds_topics_and_keeps_the_one_that_is_read() {
        type("zoom");
        compare(rows().map(row => row.label), ["Themes and interface zoom"]);
        viewer.showTopic("look");
        type("updates");
        compare(rows().map(row => row.label), ["About Corvane"]);
        compare(headings(), ["Themes and interface zoom"]);
        compare(Find.field(viewer).Accessible.description, "1 topic found");
    }

    function test_says_that_nothing_is_found() {
        type("xyzzy");
        verify(Find.text(viewer, "Nothing found for \"xyzzy\""));
        compare(rows(), []);
        compare(headings(), ["Themes and interface zoom"]);
        keyClick(Qt.Key_Escape);
        compare(rows().length, 2);
    }

    function test_shows_a_query_of_ten_thousand_characters_without_growing() {
        const words = "zoom ".repeat(2000);
        Find.field(viewer).text = words;
        Find.field(viewer).textEdited();
        compare(rows().map(row => row.label), ["Themes and interface zoom"]);
        Find.field(viewer).text = "x".repeat(10000);
        Find.field(viewer).textEdited();
        verify(Find.first(viewer, item => Find.isText(item) && item.text.startsWith("Nothing found")).width < 260);
    }
}
