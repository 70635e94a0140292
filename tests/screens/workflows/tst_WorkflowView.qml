import QtQuick
import QtTest
import Halvorin.Camera
import Halvorin.Screens
import Halvorin.Testing
import "../../kit/Find.js" as Find

TestCase {
    id: test
    name: "WorkflowView"
    when: windowShown
    width: 1070
    height: 750
    visible: true

    property WorkflowView view

    Component {
        id: views
        WorkflowView {
            width: 1070
            height: 750
            c: CameraPalette.current
            focus: true
        }
    }

    function open(course = "library") {
        World.begin(course);
        view = createTemporaryObject(views, test);
        view.forceActiveFocus();
        // The programs come after the first frame.
        tryVerify(() => Find.all(view, item => item.sourceComponent !== undefined && item.kind !== undefined).every(group => group.status === Loader.Ready));
        World.settle(view);
    }
    function shows(words) {
        return Find.text(view, words) !== null;
    }
    function card(name) {
        return Find.first(view, item => item.softwareID !== undefined && item.name === name);
    }
    function ink(name) {
        return String(Find.text(card(name), name).color);
    }

    function test_sets_film_and_digital_side_by_side() {
        open();
        for (const words of ["STAGE", "FILM", "DIGITAL", "1. Load", "Put a roll in.", "Put a card in.", "2. Develop"])
            verify(shows(words), words);
        const [film, digital] = ["Put a roll in.", "Put a card in."].map(words => Find.text(view, words));
        compare(film.width, digital.width);
        compare(film.mapToItem(view, 0, 0).y, digital.mapToItem(view, 0, 0).y);
        verify(film.mapToItem(view, 0, 0).x < digital.mapToItem(view, 0, 0).x);
    }

    function test_the_programs_come_after_the_stages() {
        World.begin("library");
        view = createTemporaryObject(views, test);
        verify(shows("1. Load"));
        verify(!shows("RAW EDITOR"));
        tryVerify(() => shows("RAW EDITOR") && shows("CATALOG"));
    }

    function test_without_stages_the_header_stands_alone() {
        open("empty");
        for (const words of ["STAGE", "FILM", "DIGITAL"])
            verify(shows(words), words);
        compare(Find.all(view, item => item.stage !== undefined && item.film !== undefined).length, 0);
        compare(Find.all(view, item => item.softwareID !== undefined).length, 0);
    }

    function test_groups_programs_by_kind() {
        open();
        const captions = Find.texts(view).filter(words => words === "RAW EDITOR" || words === "CATALOG");
        compare(captions, ["RAW EDITOR", "CATALOG"]);
        compare(card("Darkroom").mapToItem(view, 0, 0).y, card("Lightbox").mapToItem(view, 0, 0).y);
        verify(card("Archive").mapToItem(view, 0, 0).y > card("Darkroom").mapToItem(view, 0, 0).y);
        verify(shows("The Bench · Linux, macOS"));
    }

    function test_a_makers_page_tells_its_host_and_opens() {
        open();
        const link = Find.button(card("Darkroom"), "Visit Darkroom's page");
        compare(link.tip, "darkroom.example.org");
        mouseClick(link);
        compare(World.visitedAddresses(), ["https://darkroom.example.org/download"]);
    }

    function test_only_web_addresses_leave_the_program() {
        open();
        const link = Find.button(card("Lightbox"), "Visit Lightbox's page");
        compare(link.tip, "");
        mouseClick(link);
        compare(World.visitedAddresses(), []);
    }

    function test_without_an_address_there_is_no_button() {
        open();
        compare(Find.buttons(card("Archive")).length, 0);
    }

    function test_colors_the_name_that_a_search_asked_for() {
        open();
        for (const name of ["Darkroom", "Lightbox", "Archive"])
            compare(ink(name), String(CameraPalette.current.oledText));
        World.chooseSoftware("lightbox");
        compare(ink("Lightbox"), String(CameraPalette.current.glow));
        compare(ink("Darkroom"), String(CameraPalette.current.oledText));
        World.chooseSoftware("");
        compare(ink("Lightbox"), String(CameraPalette.current.oledText));
    }

    function test_names_the_makers() {
        open();
        verify(shows("Names of software belong to their makers. CRVN is not affiliated with them; links go to the makers' own pages. Prices and plans change — check the maker's page."));
    }
}
