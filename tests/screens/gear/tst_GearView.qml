import QtQuick
import QtTest
import Halvorin.Camera
import Halvorin.Screens
import Halvorin.Shell
import Halvorin.Testing
import "../../kit/Find.js" as Find

TestCase {
    id: test
    name: "GearView"
    when: windowShown
    width: 1070
    height: 750
    visible: true

    property GearView view

    readonly property string tooFew: "Nothing matches. Try a shorter word."

    Component {
        id: views
        GearView {
            width: 1070
            height: 750
            c: CameraPalette.current
            focus: true
        }
    }

    function open(course = "library", properties = {}) {
        World.begin(course);
        show(properties);
    }
    function show(properties = {}) {
        view = createTemporaryObject(views, test, properties);
        view.forceActiveFocus();
        World.settle(view);
    }
    function list() {
        return Find.first(view, item => item.selectedRow !== undefined && item.currentIndex !== undefined);
    }
    function page() {
        return Find.first(view, item => item.entryID !== undefined && item.contentY !== undefined);
    }
    function rows() {
        return Find.buttons(list()).filter(item => item.exampleCount !== undefined).sort((a, b) => a.index - b.index);
    }
    function row(name) {
        return rows().find(item => item.name === name);
    }
    function shows(words) {
        return Find.text(view, words) !== null;
    }
    function title() {
        return page().visible ? Find.first(page(), item => item.subtitle !== undefined).title : "";
    }
    function picker() {
        return Find.first(view, item => item.displayText !== undefined && item.popup !== undefined);
    }
    function drawing() {
        return Find.button(page(), "Diagram: " + page().title);
    }
    function enlarged() {
        return Find.first(view, item => item.closed !== undefined && item.kind !== undefined);
    }
    function type(words) {
        for (const letter of words)
            keyClick(letter);
        World.settle(view);
    }
    // Where an item lies in the view.
    function area(item) {
        return item.mapToItem(view, 0, 0, item.width, item.height);
    }

    function test_lists_every_entry_and_shows_the_first() {
        open();
        compare(rows().slice(0, 3).map(item => item.label), ["Tripod, Supports", "Monopod, Supports", "Fast prime lens, Lenses"]);
        compare(title(), "Tripod");
        compare(rows().filter(item => item.selected).length, 0);
        compare(picker().displayText, "All (8)");
        verify(picker().visible);
    }

    function test_shows_the_entry_that_is_pressed() {
        open();
        mouseClick(row("Monopod"));
        compare(World.gearID(), "monopod");
        compare(title(), "Monopod");
        compare(rows().filter(item => item.selected).map(item => item.name), ["Monopod"]);
    }

    function test_a_new_entry_is_read_from_its_beginning() {
        open();
        World.chooseGear("crowded");
        World.settle(view);
        page().scrollTo(0, 500);
        verify(page().contentY > 0);
        World.chooseGear("tripod");
        compare(page().contentY, 0);
    }

    function test_tells_all_of_an_entry() {
        open();
        for (const words of ["SUPPORTS", "Also called: three legs", "EXAMPLE MODELS FOR DIFFERENT USES", "Stout 3", "FOR WIND", "1.9 kg, carries 12 kg",
                             "Specs checked 2026-10-24 on the maker's page", "SEE ALSO"])
            verify(shows(words), words);
        compare(Find.buttons(page()).filter(item => item.itemID !== undefined).map(item => item.label), ["Monopod", "Fast prime lens"]);
        compare(Find.buttons(page()).filter(item => item.label === "Maker's page").length, 1);
    }

    function test_leaves_out_what_an_entry_lacks() {
        open();
        World.chooseGear("bare");
        World.settle(view);
        compare(title(), "Bare thing");
        for (const words of ["EXAMPLE MODELS FOR DIFFERENT USES", "SEE ALSO", "MY NOTES"])
            verify(!shows(words), words);
    }

    function test_a_makers_page_tells_its_host_and_opens() {
        open();
        const link = Find.button(page(), "Maker's page");
        compare(link.tip, "www.stout.example.com");
        compare(link.Accessible.name, "Maker's page, Stout 3");
        compare(link.Accessible.role, Accessible.Link);
        mouseClick(link);
        compare(World.visitedAddresses(), ["https://www.stout.example.com/3?a=1"]);
    }

    function test_what_is_no_address_leads_nowhere() {
        open();
        World.chooseGear("fast-prime");
        World.settle(view);
        const link = Find.button(page(), "Maker's page");
        compare(link.tip, "");
        mouseClick(link);
        compare(World.visitedAddresses(), []);
    }

    function test_goes_to_what_else_to_see() {
        open();
        Find.button(page(), "Monopod").clicked();
        compare(World.gearID(), "monopod");
        compare(title(), "Monopod");
    }

    function test_bookmarks_and_notes() {
        open();
        mouseClick(Find.button(page(), "Bookmark"));
        verify(World.isBookmarked("gear", "tripod"));
        mouseClick(Find.button(page(), "Bookmarked"));
        verify(!World.isBookmarked("gear", "tripod"));
        mouseClick(Find.button(page(), "Add note"));
        compare(World.noteTarget(), "gear tripod");
        World.addNote("gear", "tripod", "Carbon.");
        World.settle(view);
        verify(shows("MY NOTES"));
    }

    function test_counts_matches_data() {
        return [
            { tag: "one", query: "prime", count: "1 match", rows: 1 },
            { tag: "two", query: "tripod", count: "2 matches", rows: 2 },
            { tag: "none", query: "zeppelin", count: "0 matches", rows: 0 },
            { tag: "blanks", query: "  ", count: "8 matches", rows: 8 },
        ];
    }
    function test_counts_matches(data) {
        open();
        AppModel.gearQuery = data.query;
        World.settle(view);
        verify(shows(data.count));
        verify(!picker().visible);
        compare(list().count, data.rows);
    }

    function test_a_category_holds_for_a_search_that_hides_it() {
        open();
        picker().chosen("Lenses");
        World.settle(view);
        compare(rows().map(item => item.name), ["Fast prime lens"]);
        AppModel.gearQuery = "tripod";
        World.settle(view);
        verify(shows("0 matches"));
        verify(!picker().visible);
        verify(shows(test.tooFew));
        AppModel.gearQuery = "";
        World.settle(view);
        verify(picker().visible);
        compare(picker().displayText, "Lenses");
    }

    function test_an_entry_stays_open_while_the_list_hides_it() {
        open();
        World.chooseGear("monopod");
        AppModel.gearQuery = "zeppelin";
        World.settle(view);
        compare(title(), "Monopod");
        verify(!shows(test.tooFew));
    }

    function test_without_a_choice_a_search_opens_its_first_hit() {
        open();
        AppModel.gearQuery = "prime";
        World.settle(view);
        compare(title(), "Fast prime lens");
        compare(rows().filter(item => item.selected).length, 0);
    }

    function test_an_unknown_choice_shows_that_nothing_matches() {
        open();
        World.chooseGear("gone");
        World.settle(view);
        verify(shows(test.tooFew));
        verify(!page().visible);
    }

    function test_a_course_without_gear_shows_that_nothing_matches() {
        open("empty");
        verify(shows(test.tooFew));
        compare(picker().displayText, "All (0)");
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Return);
        compare(World.gearID(), "none");
    }

    function test_arrows_walk_the_list_and_return_opens() {
        open();
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Down);
        compare(World.gearID(), "none");
        verify(row("Fast prime lens").activeFocus);
        keyClick(Qt.Key_Up);
        keyClick(Qt.Key_Return);
        compare(World.gearID(), "monopod");
        keyClick(Qt.Key_End);
        compare(list().currentIndex, 7);
        keyClick(Qt.Key_Down);
        compare(list().currentIndex, 7);
        keyClick(Qt.Key_Home);
        compare(list().currentIndex, 0);
    }

    function test_typing_goes_on_with_the_search_and_down_comes_back() {
        open();
        type("pri");
        compare(AppModel.gearQuery, "pri");
        type("me");
        compare(AppModel.gearQuery, "prime");
        keyClick(Qt.Key_Down);
        verify(row("Fast prime lens").activeFocus);
        keyClick(Qt.Key_Return);
        compare(World.gearID(), "fast-prime");
    }

    function test_return_in_the_search_opens_the_best_hit() {
        open();
        type("mono");
        keyClick(Qt.Key_Return);
        compare(World.gearID(), "monopod");
        keyClick(Qt.Key_Escape);
        compare(AppModel.gearQuery, "");
    }

    function test_the_list_is_one_stop_of_tab() {
        open();
        compare(rows().filter(item => item.activeFocusOnTab).length, 1);
    }

    function test_begins_where_the_open_entry_is() {
        World.begin("library");
        World.chooseGear("accents");
        show({ height: 400 });
        const place = area(rows().find(item => item.index === 7));
        verify(place.y >= 0 && place.y + place.height <= 400);
    }

    function test_a_drawing_is_enlarged_by_click_and_key_and_put_back_data() {
        return [
            { tag: "click", enlarge: () => mouseClick(drawing()), putBack: () => mouseClick(view, 500, 400) },
            { tag: "Return", enlarge: () => keyClick(Qt.Key_Return), putBack: () => keyClick(Qt.Key_Return) },
            { tag: "Escape", enlarge: () => keyClick(Qt.Key_Return), putBack: () => keyClick(Qt.Key_Escape) },
            { tag: "Close", enlarge: () => mouseClick(drawing()), putBack: () => mouseClick(Find.button(view, "Close")) },
        ];
    }
    function test_a_drawing_is_enlarged_by_click_and_key_and_put_back(data) {
        open();
        drawing().forceActiveFocus(Qt.TabFocusReason);
        data.enlarge();
        verify(enlarged());
        compare(enlarged().width, view.width);
        compare(enlarged().kind, "tripod");
        // Nothing of what lies under it hears the keyboard.
        keyClick("x");
        compare(AppModel.gearQuery, "");
        data.putBack();
        tryVerify(() => !enlarged());
        verify(drawing().activeFocus);
    }

    function test_an_enlarged_drawing_reads_out_its_callouts() {
        open();
        mouseClick(drawing());
        const picture = Find.first(enlarged(), item => item.calloutTexts !== undefined);
        verify(picture.calloutTexts.length > 0);
        const read = Find.all(picture, item => item.modelData !== undefined).map(item => item.Accessible.name);
        compare(read, picture.calloutTexts);
    }

    function test_an_enlarged_drawing_goes_when_another_entry_is_opened() {
        open();
        mouseClick(drawing());
        World.chooseGear("monopod");
        tryVerify(() => !enlarged());
    }

    function test_callouts_are_whole_on_the_page_and_the_drawing_keeps_its_size() {
        open();
        for (const id of ["tripod", "monopod", "fast-prime", "long", "accents"]) {
            World.chooseGear(id);
            World.settle(view);
            const canvas = Find.first(page(), item => item.calloutReach !== undefined);
            compare(canvas.drawing, Qt.size(500, 325));
            verify(canvas.width >= 500 + canvas.calloutReach, id);
        }
    }

    function test_nothing_overlaps_whatever_the_course_says_data() {
        return ["tripod", "bare", "crowded", "long", "arabic", "accents"].map(id => ({ tag: id }));
    }
    function test_nothing_overlaps_whatever_the_course_says(data) {
        open();
        World.chooseGear(data.tag);
        World.settle(view);
        const lines = Find.all(page(), item => Find.isText(item) && item.visible && item.text !== "" && item.Accessible.name !== "").map(item => area(item)).filter(box => box.width > 0);
        const right = area(page()).x + page().width;
        for (let i = 0; i < lines.length; ++i) {
            verify(lines[i].x + lines[i].width <= right, `line ${i} ends on the page`);
            if (i + 1 < lines.length && i < 40) {
                const [a, b] = [lines[i], lines[i + 1]];
                const apart = a.y + a.height <= b.y + 1 || b.y + b.height <= a.y + 1 || a.x + a.width <= b.x + 1 || b.x + b.width <= a.x + 1;
                verify(apart, `lines ${i} and ${i + 1} stand apart`);
            }
        }
        const heights = rows().map(item => area(item));
        for (let i = 1; i < heights.length; ++i)
            verify(heights[i - 1].y + heights[i - 1].height <= heights[i].y);
    }

    function test_a_name_of_500_characters_wraps_on_the_page() {
        open();
        World.chooseGear("long");
        World.settle(view);
        const heading = Find.first(page(), item => Find.isText(item) && item.text.startsWith("UNENDINGLY"));
        verify(heading.lineCount > 5);
        verify(!heading.truncated);
        verify(heading.contentWidth <= heading.width);
    }

    function test_shows_a_hundred_examples() {
        open();
        World.chooseGear("crowded");
        World.settle(view);
        compare(Find.buttons(page()).filter(item => item.label === "Maker's page").length, 100);
    }
}
