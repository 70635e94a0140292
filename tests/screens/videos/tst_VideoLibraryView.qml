import QtQuick
import QtTest
import Halvorin.Camera
import Halvorin.Screens
import Halvorin.Shell
import Halvorin.Testing
import "../../kit/Find.js" as Find

TestCase {
    id: test
    name: "VideoLibraryView"
    when: windowShown
    width: 1070
    height: 750
    visible: true

    property VideoLibraryView view

    readonly property string failure: "The player couldn't load this video here."

    Component {
        id: views
        VideoLibraryView {
            width: 1070
            height: 750
            c: CameraPalette.current
            focus: true
        }
    }

    // Without a network unless a test wants one: there is nothing to play in these tests.
    function open(course = "films", properties = {}) {
        World.begin(course);
        World.setOnline(false);
        view = createTemporaryObject(views, test, properties);
        view.forceActiveFocus();
        World.settle(view);
    }
    function list() {
        return Find.first(view, item => item.selectedRow !== undefined && item.currentIndex !== undefined);
    }
    function page() {
        return Find.first(view, item => item.videoID !== undefined && item.contentY !== undefined);
    }
    function rows() {
        return Find.buttons(list()).filter(item => item.byline !== undefined).sort((a, b) => a.index - b.index);
    }
    function row(title) {
        return rows().find(item => item.title === title);
    }
    function captions() {
        return Find.all(list(), item => item.visible && item.section !== undefined && item.text !== undefined).sort((a, b) => a.y - b.y).map(item => item.text);
    }
    function shows(words) {
        return Find.text(view, words) !== null;
    }
    function title() {
        return page().visible ? Find.first(page(), item => item.subtitle !== undefined).title : "";
    }
    function button(label) {
        return Find.button(page(), label);
    }
    function type(words) {
        for (const letter of words)
            keyClick(letter);
        World.settle(view);
    }
    function area(item) {
        return item.mapToItem(view, 0, 0, item.width, item.height);
    }

    function test_lists_the_films_under_their_modules() {
        open();
        compare(captions(), ["LIGHT AND THE CAMERA", "TIME"]);
        compare(rows().map(item => item.title), ["Pinhole", "Pinhole for two", "Shutters"]);
        compare(row("Shutters").byline, "The Bench · 12:05");
        compare(row("Pinhole for two").byline, "Bright & <b>Room</b> · 61:05");
        compare(rows().filter(item => item.selected).length, 0);
    }

    function test_the_first_of_the_course_counts_as_chosen() {
        open();
        compare(title(), "Shutters");
        compare(World.videoID(), "none");
    }

    function test_shows_the_film_that_is_pressed() {
        open();
        mouseClick(row("Pinhole"));
        compare(World.videoID(), "abcdefghijk");
        compare(title(), "Pinhole");
        verify(shows("The Bench · 1:00 · published 2021-03-04 · link checked 2026-10-24"));
        compare(rows().filter(item => item.selected).map(item => item.title), ["Pinhole"]);
    }

    function test_filters_as_one_types() {
        open();
        type("pin");
        compare(rows().map(item => item.title), ["Pinhole", "Pinhole for two"]);
        compare(captions(), ["LIGHT AND THE CAMERA"]);
        compare(title(), "Pinhole");
        keyClick(Qt.Key_Escape);
        World.settle(view);
        compare(rows().length, 3);
    }

    function test_nothing_that_matches_is_said_and_a_chosen_film_stays() {
        open();
        type("zeppelin");
        verify(shows("No videos match."));
        compare(title(), "");
        World.chooseVideo("abcdefghijk");
        World.settle(view);
        compare(title(), "Pinhole");
        verify(!shows("No videos match."));
    }

    function test_a_course_without_videos_shows_that_nothing_matches() {
        open("empty");
        verify(shows("No videos match."));
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Return);
        compare(World.videoID(), "none");
    }

    function test_arrows_walk_the_list_and_return_opens() {
        open();
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Down);
        compare(World.videoID(), "none");
        verify(row("Shutters").activeFocus);
        keyClick(Qt.Key_Up);
        keyClick(Qt.Key_Return);
        compare(World.videoID(), "nopinhole_2");
        type("shut");
        keyClick(Qt.Key_Return);
        compare(World.videoID(), "shutters_01");
        keyClick(Qt.Key_Down);
        verify(row("Shutters").activeFocus);
    }

    function test_tab_goes_from_the_filter_over_one_row_to_the_page() {
        open();
        keyClick(Qt.Key_Tab);
        verify(button("Open in YouTube").activeFocus);
        keyClick(Qt.Key_Backtab);
        verify(rows().some(item => item.activeFocus));
        keyClick(Qt.Key_Backtab);
        verify(Find.first(view, item => item.editing === true));
    }

    function test_without_a_network_says_so_and_keeps_the_browser_closed() {
        open();
        verify(shows("Needs internet"));
        verify(!shows(test.failure));
        mouseClick(button("Open in YouTube"));
        compare(World.visitedAddresses(), []);
        verify(World.message().startsWith("This video needs internet."));
        verify(shows(World.message()));
    }

    function test_where_the_player_is_missing_the_browser_is_the_way_out() {
        open();
        World.setOnline(true);
        tryVerify(() => shows(test.failure));
        verify(!shows("Needs internet"));
        mouseClick(button("Open in YouTube"));
        compare(World.visitedAddresses(), ["https://www.youtube.com/watch?v=shutters_01"]);
        compare(World.message(), "");
    }

    function test_bookmarks_and_notes() {
        open();
        mouseClick(button("Bookmark"));
        verify(World.isBookmarked("video", "shutters_01"));
        mouseClick(button("Bookmarked"));
        verify(!World.isBookmarked("video", "shutters_01"));
        mouseClick(button("Add note"));
        compare(World.noteTarget(), "video shutters_01");
        World.addNote("video", "shutters_01", "Curtains.");
        World.settle(view);
        verify(shows("MY NOTES"));
    }

    function test_goes_to_the_module() {
        open();
        mouseClick(button("Go to module: Time"));
        compare(World.moduleID(), "time");
        compare(World.lessonID(), "none");
        compare(World.quizModuleID(), "none");
        compare(AppModel.screenShortTitle, World.screens()[1].shortTitle);
    }

    function test_a_film_of_no_module_has_no_way_to_one() {
        open();
        World.chooseVideo("nobodysfilm");
        World.settle(view);
        compare(title(), "Nobody's film");
        compare(Find.buttons(page()).filter(item => item.visible && item.label.startsWith("Go to module")).length, 0);
        compare(rows().filter(item => item.selected).length, 0);
    }

    function test_a_new_film_is_seen_from_its_beginning() {
        open("films", { height: 500 });
        page().scrollTo(0, 100);
        verify(page().contentY > 0);
        World.chooseVideo("abcdefghijk");
        compare(page().contentY, 0);
    }

    function test_the_stage_has_the_shape_of_a_film_and_is_900_points_wide_at_most_data() {
        return [{ tag: "usual", width: 1070, stage: 1070 - 321 - 44 }, { tag: "wide", width: 1800, stage: 900 }];
    }
    function test_the_stage_has_the_shape_of_a_film_and_is_900_points_wide_at_most(data) {
        open("films", { width: data.width });
        const stage = Find.first(page(), item => item.videoID !== undefined && item.contentY === undefined);
        compare(stage.width, data.stage);
        fuzzyCompare(stage.height, stage.width * 9 / 16, 0.01);
    }

    function test_nothing_overlaps() {
        open();
        World.chooseVideo("nopinhole_2");
        World.addNote("video", "nopinhole_2", "Two holes.");
        World.settle(view);
        const lines = Find.all(page(), item => Find.isText(item) && item.visible && item.text !== "").map(item => area(item)).filter(box => box.width > 0);
        const right = area(page()).x + page().width;
        for (let i = 0; i < lines.length; ++i) {
            verify(lines[i].x + lines[i].width <= right, `line ${i} ends on the page`);
            for (let k = i + 1; k < lines.length; ++k) {
                const [a, b] = [lines[i], lines[k]];
                const apart = a.y + a.height <= b.y + 1 || b.y + b.height <= a.y + 1 || a.x + a.width <= b.x + 1 || b.x + b.width <= a.x + 1;
                verify(apart, `lines ${i} and ${k} stand apart`);
            }
        }
        const boxes = rows().map(item => area(item));
        for (let i = 1; i < boxes.length; ++i)
            verify(boxes[i - 1].y + boxes[i - 1].height <= boxes[i].y);
    }
}
