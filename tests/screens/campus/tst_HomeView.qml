import QtQuick
import QtTest
import Halvorin.Camera
import Halvorin.Screens
import Halvorin.Shell
import Halvorin.Testing
import "../../kit/Find.js" as Find

TestCase {
    id: test
    name: "HomeView"
    when: windowShown
    width: 1000
    height: 800
    visible: true

    Component {
        id: homes
        HomeView {
            width: 900
            height: 640
            c: CameraPalette.current
        }
    }
    Component {
        id: moduleCards
        ModuleCard {
            c: CameraPalette.current
            moduleID: "light"
            level: "Beginner"
            summary: ""
            doneIn: 2
            lessonsIn: 5
        }
    }
    property Item home

    function init() {
        World.begin();
        show();
    }
    function show() {
        home = createTemporaryObject(homes, test);
        World.settle(home);
    }
    // Another course can be put in place only while no screen looks at this one.
    function showCourse(course, withStore) {
        home.destroy();
        wait(0);
        World.begin(course, withStore);
        show();
    }

    function cards() {
        return Find.buttons(home).filter(button => button.lessonsIn !== undefined);
    }
    function continueButton() {
        return Find.buttons(home).find(button => button.prominent);
    }

    function test_says_a_title_as_it_stands() {
        for (const title of ["Light", "The %2 that is left", "%1 %2 %3 %4"]) {
            const card = createTemporaryObject(moduleCards, test, { title: title });
            compare(card.Accessible.name, title + ". Beginner. 2 of 5 lessons finished");
        }
    }

    function test_greets_the_user() {
        const texts = Find.texts(home);
        verify(texts.includes("WELCOME TO CAMPUS"));
        verify(texts.includes("A complete photography course: from your first exposure to a working pro's kit and workflow."));
        verify(texts.includes("Work through the modules in order or jump to what you need. The Exposure Lab and Lens Lab let you try every idea with real numbers; the Gear Encyclopedia explains everything a photographer carries."));
        verify(texts.includes("MODULES"));
    }

    function test_offers_its_ways_in_their_order() {
        compare(Find.buttons(home).slice(0, 3).map(button => button.label),
                ["Start lesson 1", "Exposure Lab", "Encyclopedia"]);
        compare(Find.buttons(home).slice(0, 3).map(button => button.symbol),
                ["play.fill", "camera.aperture", "books.vertical"]);
        compare(Find.buttons(home).slice(0, 3).map(button => button.prominent), [true, false, false]);
        for (const button of Find.buttons(home).slice(0, 3))
            verify(!button.compact);
    }

    function test_a_fresh_user_starts_with_lesson_one() {
        compare(continueButton().label, "Start lesson 1");
        mouseClick(continueButton());
        compare(AppModel.screen, HVScreen.Course);
        compare(World.lessonID(), "l1");
        compare(World.moduleID(), "light");
    }

    function test_goes_on_with_the_first_unfinished_lesson() {
        World.finish(["l1", "l3"]);
        compare(continueButton().label, "Continue: A lens in the hole");
        mouseClick(continueButton());
        compare(World.lessonID(), "l2");
    }

    function test_goes_on_with_the_first_lesson_when_all_are_finished() {
        World.finishAll();
        compare(continueButton().label, "Continue: A hole in the dark");
        mouseClick(continueButton());
        compare(AppModel.screen, HVScreen.Course);
        compare(World.lessonID(), "l1");
    }

    function test_goes_to_the_lab_and_to_the_encyclopedia() {
        mouseClick(Find.button(home, "Exposure Lab"));
        compare(AppModel.screen, HVScreen.Exposure);
        mouseClick(Find.button(home, "Encyclopedia"));
        compare(AppModel.screen, HVScreen.Gear);
        compare(World.gearID(), "none");
    }

    function test_shows_progress_as_a_ring() {
        const ring = Find.first(home, item => item.done !== undefined && item.total !== undefined && item.subtitle === undefined && item.width === 150);
        compare(ring.height, 150);
        compare(ring.Accessible.name, "0 of 4 lessons finished");
        World.finish(["l1", "an-old-lesson"]);
        compare(ring.Accessible.name, "2 of 4 lessons finished");
        verify(Find.text(ring, "50%"));
    }

    function test_has_a_card_for_each_module_in_the_order_of_the_course() {
        compare(cards().map(card => card.title), ["Light and the camera", "Time", "Chapters to come"]);
        compare(Find.texts(cards()[0]), ["BEGINNER", "0/2", "Light and the camera", "What happens between the scene and the file."]);
        compare(Find.texts(cards()[1]), ["ADVANCED", "0/1", "Time", "How long the shutter stays open."]);
        verify(Find.texts(cards()[2]).includes("0/0"));
    }

    function test_counts_on_its_cards_at_once() {
        World.finish(["l2"]);
        verify(Find.text(cards()[0], "1/2"));
        verify(Find.text(cards()[1], "0/1"));
        World.finish(["l1", "l3"]);
        verify(Find.text(cards()[0], "2/2"));
        verify(Find.text(cards()[1], "1/1"));
        verify(Find.text(cards()[2], "0/0"));
    }

    function test_fills_the_bars_of_its_cards() {
        World.finish(["l2"]);
        const fill = card => Find.first(card, item => item.done !== undefined && item.total !== undefined && item.height === 4).children[0];
        compare(fill(cards()[0]).width, fill(cards()[0]).parent.width / 2);
        compare(fill(cards()[1]).width, 0);
        // Nothing of nothing is nothing.
        compare(fill(cards()[2]).width, 0);
    }

    function test_colors_levels() {
        compare(String(Find.text(cards()[0], "BEGINNER").color), String(CameraPalette.current.good));
        compare(String(Find.text(cards()[1], "ADVANCED").color), String(CameraPalette.current.warn));
    }

    function test_a_card_opens_the_introduction_of_its_module() {
        AppModel.openLesson("l1");
        AppModel.screen = HVScreen.Home;
        mouseClick(cards()[1]);
        compare(AppModel.screen, HVScreen.Course);
        compare(World.moduleID(), "time");
        compare(World.lessonID(), "none");
        compare(World.quizModuleID(), "none");
    }

    function test_a_card_leaves_a_quiz() {
        World.showQuiz("light");
        mouseClick(cards()[0]);
        compare(World.quizModuleID(), "none");
        compare(World.moduleID(), "light");
    }

    function test_a_card_is_known_by_what_it_shows() {
        World.finish(["l2"]);
        compare(cards()[0].Accessible.name, "Light and the camera. Beginner. 1 of 2 lessons finished");
    }

    function test_a_card_answers_the_keyboard() {
        cards()[1].forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Return);
        compare(World.moduleID(), "time");
    }

    function test_cards_are_at_least_250_wide_and_fill_the_row() {
        for (const data of [{ width: 900, columns: 3 }, { width: 700, columns: 2 }, { width: 400, columns: 1 }]) {
            home.width = data.width;
            World.settle(home);
            compare(cards().filter(card => card.y === cards()[0].y).length, data.columns);
            for (const card of cards())
                verify(card.width >= 250, "at " + data.width);
            const last = cards()[data.columns - 1];
            fuzzyCompare(last.x + last.width, last.parent.width, 0.01);
            if (data.columns > 1)
                fuzzyCompare(cards()[1].x - cards()[0].width, 12, 0.01);
        }
    }

    function test_cards_are_at_least_118_high_inside_and_as_high_as_their_neighbors() {
        const inside = card => card.height - card.topPadding - card.bottomPadding;
        for (const card of cards()) {
            compare(card.topPadding, 12);
            verify(inside(card) >= 118);
            compare(card.height, cards()[0].height);
        }
    }

    function test_cuts_no_text_of_its_cards() {
        home.width = 330;
        World.settle(home);
        for (const card of cards()) {
            for (const words of Find.all(card, Find.isText))
                verify(!words.truncated, words.text);
        }
    }

    function test_shows_nothing_finished_without_a_store() {
        showCourse("small", false);
        compare(continueButton().label, "Start lesson 1");
        compare(cards().map(card => card.doneIn), [0, 0, 0]);
        mouseClick(continueButton());
        compare(World.lessonID(), "l1");
    }

    function test_has_nothing_to_continue_in_a_course_without_lessons() {
        showCourse("bare", true);
        compare(continueButton(), undefined);
        compare(Find.buttons(home).slice(0, 2).map(button => button.label), ["Exposure Lab", "Encyclopedia"]);
        verify(Find.text(home, "0 of 0 lessons"));
        verify(Find.text(home, "0%"));
        verify(Find.text(cards()[0], "0/0"));
    }

    function test_has_no_cards_without_modules() {
        showCourse("empty", true);
        compare(cards().length, 0);
        compare(continueButton(), undefined);
        verify(Find.text(home, "MODULES"));
    }
}
