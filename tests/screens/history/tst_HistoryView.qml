import QtQuick
import QtTest
import Halvorin.Camera
import Halvorin.Screens
import Halvorin.Testing
import "../../kit/Find.js" as Find

TestCase {
    id: test
    name: "HistoryView"
    when: windowShown
    width: 1070
    height: 750
    visible: true

    property HistoryView view

    Component {
        id: views
        HistoryView {
            width: 1070
            height: 750
            c: CameraPalette.current
            focus: true
        }
    }

    function open(course = "library", withStore = true) {
        World.begin(course, withStore);
        view = createTemporaryObject(views, test);
        view.forceActiveFocus();
        World.settle(view);
    }
    function list() {
        return Find.first(view, item => item.selectedRow !== undefined && item.currentIndex !== undefined);
    }
    function rows() {
        return Find.buttons(list()).filter(item => item.year !== undefined).sort((a, b) => a.y - b.y);
    }
    function row(title) {
        return rows().find(item => item.title === title);
    }
    function page() {
        return Find.first(view, item => item.maximumWidth === 860);
    }
    function heading() {
        return Find.first(page(), item => item.subtitle !== undefined).title;
    }
    function captions() {
        return Find.all(list(), item => item.section !== undefined && item.visible).sort((a, b) => a.y - b.y).map(item => item.text);
    }

    function test_shows_the_eras_in_their_order_and_each_once() {
        open();
        compare(captions(), ["PIONEERS", "THE DIGITAL ERA", "DIGITAL"]);
        compare(rows().map(item => item.label), ["1015, The dark room", "1839, The mirror with a memory", "1991, A camera without film", "2000, Everybody has one"]);
    }

    function test_without_a_choice_the_first_event_is_open_and_none_selected() {
        open();
        compare(heading(), "The dark room");
        compare(rows().filter(item => item.selected).length, 0);
    }

    function test_an_unknown_choice_is_no_choice() {
        open();
        World.chooseEvent("gone");
        World.settle(view);
        compare(heading(), "The dark room");
        compare(rows().filter(item => item.selected).length, 0);
    }

    function test_a_course_without_events_is_empty() {
        open("empty");
        compare(rows().length, 0);
        compare(Find.texts(view), []);
    }

    function test_shows_the_event_that_is_pressed() {
        open();
        mouseClick(row("The mirror with a memory"));
        compare(World.eventID(), "daguerre");
        compare(heading(), "The mirror with a memory");
        verify(Find.text(page(), "19 August 1839"));
        verify(Find.text(page(), "PIONEERS"));
        compare(rows().filter(item => item.selected).map(item => item.title), ["The mirror with a memory"]);
    }

    function test_sources_tell_their_host_and_open() {
        open();
        verify(Find.text(page(), "SOURCES"));
        verify(Find.text(page(), "checked 2026-10-24"));
        const source = Find.button(page(), "An old book");
        compare(source.tip, "books.example.org");
        mouseClick(source);
        const rumor = Find.button(page(), "A rumor");
        compare(rumor.tip, "");
        mouseClick(rumor);
        compare(World.visitedAddresses(), ["https://books.example.org/obscura"]);
    }

    function test_bookmarks_and_notes() {
        open();
        mouseClick(Find.button(page(), "Bookmark"));
        verify(World.isBookmarked("history", "obscura"));
        mouseClick(Find.button(page(), "Bookmarked"));
        verify(!World.isBookmarked("history", "obscura"));
        mouseClick(Find.button(page(), "Add note"));
        compare(World.noteTarget(), "history obscura");
        World.addNote("history", "obscura", "Try it at home.");
        World.settle(view);
        verify(Find.text(page(), "MY NOTES"));
    }

    function test_without_a_store_its_buttons_do_no_harm() {
        open("library", false);
        mouseClick(Find.button(page(), "Bookmark"));
        verify(Find.button(page(), "Bookmark"));
    }

    function test_arrows_walk_the_timeline_and_return_opens() {
        open();
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Down);
        verify(row("A camera without film").activeFocus);
        compare(World.eventID(), "none");
        keyClick(Qt.Key_Return);
        compare(World.eventID(), "digital");
        keyClick(Qt.Key_End);
        keyClick(Qt.Key_Return);
        compare(World.eventID(), "later");
    }
}
