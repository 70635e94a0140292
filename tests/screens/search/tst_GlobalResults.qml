import QtQuick
import QtTest
import Halvorin.Camera
import Halvorin.Screens
import Halvorin.Shell
import Halvorin.Testing
import "../../kit/Find.js" as Find

TestCase {
    id: test
    name: "GlobalResults"
    when: windowShown
    width: 900
    height: 640
    visible: true

    Component {
        id: panels
        GlobalResults {
            width: 860
            height: 600
            c: CameraPalette.current
            focus: true
        }
    }
    property Item panel

    function init() {
        World.begin();
    }
    function cleanup() {
        AppModel.globalQuery = "";
    }
    // The panel with the answer to a query.
    function ask(query) {
        AppModel.globalQuery = query;
        panel = createTemporaryObject(panels, test);
        panel.forceActiveFocus();
        answered(query);
    }
    function answered(query) {
        tryVerify(() => heading().endsWith(`for "${query}"`));
        World.settle(panel);
    }
    function heading() {
        return Find.first(panel, item => item.Accessible.role === Accessible.Heading).text;
    }
    function hits() {
        return Find.buttons(panel).filter(button => button.kind !== undefined).sort((a, b) => a.index - b.index);
    }
    function titles() {
        return hits().map(hit => `${hit.kind} ${hit.title}`);
    }
    function focused() {
        return hits().find(hit => hit.activeFocus)?.index;
    }
    readonly property string nothing: "Nothing found. Try fewer or shorter words, e.g. \"tripod\", \"f/1.8\" becomes \"1.8\", \"Kodak\"."

    function test_counts_one_hit_as_a_result() {
        ask("tripod");
        compare(heading(), "1 result for \"tripod\"");
        compare(titles(), ["gear Tripod"]);
        compare(AppModel.searchOutcome, "1 result");
    }

    function test_counts_several_hits_and_none_as_results() {
        ask("a");
        compare(heading(), `${hits().length} results for "a"`);
        verify(hits().length > 2);
        AppModel.globalQuery = "zzqxv";
        answered("zzqxv");
        compare(heading(), "0 results for \"zzqxv\"");
        compare(AppModel.searchOutcome, "0 results");
    }

    function test_says_that_nothing_is_found_data() {
        return [
            { tag: "a word that stands nowhere", query: "zzqxv" },
            { tag: "a query that can't be searched for", query: "\"*+-()" },
        ];
    }
    function test_says_that_nothing_is_found(data) {
        ask(data.query);
        compare(hits(), []);
        const text = Find.text(panel, test.nothing);
        verify(text);
        verify(text.width <= 420);
        AppModel.globalQuery = "tripod";
        answered("tripod");
        verify(!Find.text(panel, test.nothing));
    }

    function test_says_nothing_before_there_is_an_answer() {
        AppModel.globalQuery = "zzqxv";
        panel = createTemporaryObject(panels, test);
        compare(heading(), "");
        verify(!Find.text(panel, test.nothing));
        answered("zzqxv");
    }

    function test_shows_kind_title_and_words_around() {
        ask("pinhole");
        const lesson = hits().find(hit => hit.kind === "lesson");
        compare(Find.texts(lesson).slice(0, 2), ["LESSON", "A hole in the dark"]);
        verify(Find.texts(lesson)[2].includes("pinhole"));
        compare(lesson.Accessible.name, "A hole in the dark, lesson");
        compare(lesson.Accessible.description, lesson.snippet);
    }

    function test_mixes_the_kinds_as_they_rank() {
        ask("light");
        verify(titles().includes("lesson Light") || titles().includes("lesson A hole in the dark"));
        verify(titles().includes("video Pinhole"));
    }

    function test_opens_the_hit_that_is_clicked() {
        ask("tripod");
        mouseClick(hits()[0]);
        compare(World.gearID(), "tripod");
        compare(AppModel.screen, HVScreen.Gear);
        compare(AppModel.globalQuery, "");
    }

    function test_arrows_go_through_the_hits_and_return_opens() {
        ask("a");
        compare(focused(), 0);
        keyClick(Qt.Key_Down);
        compare(focused(), 1);
        verify(hits()[1].visualFocus);
        keyClick(Qt.Key_End);
        compare(focused(), hits().length - 1);
        keyClick(Qt.Key_Down);
        compare(focused(), hits().length - 1);
        keyClick(Qt.Key_Up);
        compare(focused(), hits().length - 2);
        keyClick(Qt.Key_Home);
        compare(focused(), 0);
        keyClick(Qt.Key_Return);
        compare(AppModel.globalQuery, "");
        verify(AppModel.screen !== HVScreen.Home);
    }

    function test_tab_goes_from_close_to_the_hits() {
        ask("a");
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Backtab);
        verify(Find.button(panel, "Close").activeFocus);
        keyClick(Qt.Key_Tab);
        compare(focused(), 1);
    }

    function test_close_and_escape_clear_the_query() {
        ask("tripod");
        mouseClick(Find.button(panel, "Close"));
        compare(AppModel.globalQuery, "");
        panel.destroy();
        wait(0);
        ask("tripod");
        hits()[0].forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Escape);
        compare(AppModel.globalQuery, "");
        panel.destroy();
        wait(0);
        ask("tripod");
        Find.button(panel, "Close").forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Escape);
        compare(AppModel.globalQuery, "");
    }

    function test_keeps_what_it_shows_until_the_next_answer_and_shows_the_last_query_alone() {
        ask("tripod");
        const headings = [];
        AppModel.globalQuery = "a";
        compare(heading(), "1 result for \"tripod\"");
        compare(titles(), ["gear Tripod"]);
        AppModel.globalQuery = "zz";
        AppModel.globalQuery = "pinhole";
        tryVerify(() => {
            headings.push(heading());
            return heading().endsWith("\"pinhole\"");
        });
        verify(headings.every(text => text.includes("tripod") || text.includes("pinhole")));
    }

    function test_goes_without_an_outcome_left_behind() {
        ask("tripod");
        compare(AppModel.searchOutcome, "1 result");
        panel.destroy();
        tryCompare(AppModel, "searchOutcome", "");
    }

    function test_shows_a_pasted_page_shortened() {
        const page = "tripod ".repeat(4000).trim();
        AppModel.globalQuery = page;
        panel = createTemporaryObject(panels, test);
        tryVerify(() => heading() !== "");
        verify(heading().length < 400);
        compare(titles(), ["gear Tripod"]);
    }
}
