import QtQuick
import QtTest
import Halvorin.Camera
import Halvorin.Screens
import Halvorin.Shell
import Halvorin.Testing
import "../../kit/Find.js" as Find

TestCase {
    id: test
    name: "QuizView"
    when: windowShown
    width: 900
    height: 700
    visible: true

    property QuizView page

    Component {
        id: pages
        QuizView {
            width: 900
            height: 700
            c: CameraPalette.current
            focus: true
        }
    }

    function take(moduleID, course, withStore) {
        World.begin(course ?? "small", withStore ?? true);
        page = createTemporaryObject(pages, test, { moduleID });
        page.forceActiveFocus();
        World.settle(page);
    }
    function button(label) {
        return Find.button(page, label);
    }
    function shows(words) {
        return Find.text(page, words) !== null;
    }
    function title() {
        return Find.first(page, item => item.subtitle !== undefined);
    }
    function press(label) {
        World.settle(page);
        const target = button(label);
        page.scrollTo(0, target.mapToItem(page.contentItem, 0, 0).y - 100);
        mouseClick(target);
    }
    function answerAll(...labels) {
        for (const label of labels)
            press(label);
    }

    function test_shows_title_count_and_questions() {
        take("light");
        compare(title().title, "Quiz: Light and the camera");
        verify(shows("2 questions. Pick one answer for each, then check your answers."));
        verify(shows("1. What sorts the light?"));
        verify(shows("2. How does the picture stand?"));
        verify(shows("0 of 2 answered"));
        verify(!button("Check my answers").enabled);
        verify(!button("Try again"));
        verify(!Find.texts(page).some(words => words.startsWith("Your scores")));
        verify(!shows("Right. One ray for each point gets through."));
    }

    function test_an_unknown_module_has_no_title_behind_the_blank() {
        take("gone");
        compare(title().title, "Quiz: ");
    }

    function test_a_pick_can_be_replaced_and_not_taken_back() {
        take("light");
        press("The wall");
        compare(button("The wall").symbol, "largecircle.fill.circle");
        compare(String(button("The wall").ink), String(page.c.glow));
        verify(shows("1 of 2 answered"));
        press("The wall");
        compare(button("The wall").symbol, "largecircle.fill.circle");
        press("The hole");
        compare(button("The wall").symbol, "circle");
        compare(button("The hole").symbol, "largecircle.fill.circle");
        verify(shows("1 of 2 answered"));
        verify(!button("Check my answers").enabled);
    }

    function test_turns_into_its_review_and_stores_the_score() {
        take("light");
        answerAll("The hole", "On its feet");
        verify(shows("2 of 2 answered"));
        press("Check my answers");
        compare(World.scores("light"), ["1/2"]);
        verify(shows("Score: 1 / 2"));
        verify(shows("Right. One ray for each point gets through."));
        verify(shows("Not quite. Rays cross in the hole."));
        compare(button("The hole").symbol, "checkmark.circle.fill");
        compare(String(button("The hole").ink), String(page.c.good));
        compare(button("The wall").symbol, "circle");
        compare(button("On its feet").symbol, "xmark.circle.fill");
        compare(String(button("On its feet").ink), String(page.c.bad));
        compare(button("On its head").symbol, "checkmark.circle.fill");
        compare(String(Find.text(page, "Not quite. Rays cross in the hole.").color), String(page.c.warn));
        compare(String(Find.text(page, "Right. One ray for each point gets through.").color), String(page.c.good));
        verify(!button("Check my answers"));
        compare(button("On its feet").Accessible.description, "Your answer, wrong");
        compare(button("On its head").Accessible.description, "The right answer");
    }

    function test_options_do_not_react_in_the_review() {
        take("light");
        answerAll("The hole", "On its feet");
        press("Check my answers");
        press("The wall");
        compare(button("The wall").symbol, "circle");
        verify(shows("Score: 1 / 2"));
        compare(World.scores("light"), ["1/2"]);
    }

    function test_can_be_taken_again() {
        take("light");
        answerAll("The hole", "On its feet");
        press("Check my answers");
        press("Try again");
        verify(shows("0 of 2 answered"));
        compare(button("The hole").symbol, "circle");
        verify(shows("Your scores: 1/2 (" + World.day() + ")"));
        answerAll("The hole", "On its head");
        press("Check my answers");
        compare(World.scores("light"), ["2/2", "1/2"]);
        verify(shows(`Your scores: 2/2 (${World.day()}) · 1/2 (${World.day()})`));
    }

    function test_five_of_six_scores_stand_in_the_line() {
        World.begin();
        for (let daysAgo = 5; daysAgo >= 0; --daysAgo)
            World.addScore("light", daysAgo % 3, 2, daysAgo);
        page = createTemporaryObject(pages, test, { moduleID: "light" });
        const line = [0, 1, 2, 3, 4].map(daysAgo => `${daysAgo % 3}/2 (${World.day(daysAgo)})`).join(" · ");
        verify(shows("Your scores: " + line));
        compare(World.scores("light").length, 6);
    }

    function test_says_why_a_score_could_not_be_stored_and_keeps_the_picks() {
        take("light");
        answerAll("The hole", "On its head");
        World.fillDisk();
        press("Check my answers");
        verify(AppModel.messageText.includes("disk is full"));
        verify(button("Check my answers").enabled);
        verify(shows("2 of 2 answered"));
        compare(button("The hole").symbol, "largecircle.fill.circle");
        verify(!button("Try again"));
    }

    function test_a_module_without_questions_can_not_be_scored() {
        take("time");
        verify(shows("0 questions. Pick one answer for each, then check your answers."));
        verify(shows("0 of 0 answered"));
        verify(button("Check my answers").enabled);
        press("Check my answers");
        compare(AppModel.messageText, "A quiz score must be between 0 and the number of questions.");
        verify(button("Check my answers"));
        compare(World.scores("time"), []);
    }

    function test_without_a_store_nothing_is_recorded() {
        take("light", "small", false);
        answerAll("The hole", "On its feet");
        press("Check my answers");
        verify(shows("Score: 1 / 2"));
        compare(AppModel.messageText, "");
        press("Try again");
        verify(!Find.texts(page).some(words => words.startsWith("Your scores")));
    }

    function test_without_a_store_a_module_without_questions_scores_nothing_of_nothing() {
        take("time", "small", false);
        press("Check my answers");
        verify(shows("Score: 0 / 0"));
        compare(AppModel.messageText, "");
    }

    function test_picks_are_carried_over_to_another_module_and_only_counted() {
        take("light");
        answerAll("The hole", "On its feet");
        page.moduleID = "time";
        verify(shows("2 of 0 answered"));
        page.moduleID = "light";
        compare(button("The hole").symbol, "largecircle.fill.circle");
        press("Check my answers");
        page.moduleID = "time";
        verify(button("Try again"));
        press("Try again");
        verify(shows("0 of 0 answered"));
    }

    function test_begins_another_quiz_at_its_top() {
        take("light");
        page.height = 200;
        page.contentY = 80;
        page.moduleID = "time";
        compare(page.contentY, 0);
    }

    function test_shows_the_score_after_the_check() {
        take("light");
        page.height = 260;
        answerAll("The hole", "On its feet");
        press("Check my answers");
        World.settle(page);
        const score = Find.text(page, "Score: 1 / 2");
        tryVerify(() => {
            const y = score.mapToItem(page, 0, 0).y;
            return y >= 0 && y + score.height <= page.height;
        });
    }

    function test_is_taken_by_keyboard() {
        take("light");
        keyClick(Qt.Key_Tab);
        verify(button("The hole").activeFocus);
        keyClick(Qt.Key_Down);
        verify(button("The wall").activeFocus);
        compare(button("The wall").symbol, "largecircle.fill.circle");
        keyClick(Qt.Key_Up);
        compare(button("The hole").symbol, "largecircle.fill.circle");
        // Beyond the first there is nothing.
        keyClick(Qt.Key_Up);
        compare(button("The hole").symbol, "largecircle.fill.circle");
        // Return on a pick goes on to the next question without one.
        keyClick(Qt.Key_Return);
        verify(button("On its head").activeFocus);
        compare(button("On its head").symbol, "circle");
        keyClick(Qt.Key_2);
        verify(button("On its feet").activeFocus);
        compare(button("On its feet").symbol, "largecircle.fill.circle");
        keyClick(Qt.Key_7);
        compare(button("On its feet").symbol, "largecircle.fill.circle");
        // All are answered, so it checks.
        keyClick(Qt.Key_Return);
        verify(shows("Score: 1 / 2"));
        verify(button("Try again").activeFocus);
        keyClick(Qt.Key_Return);
        verify(shows("0 of 2 answered"));
    }

    function test_tab_stops_once_in_each_question() {
        take("light");
        press("On its feet");
        page.forceActiveFocus();
        keyClick(Qt.Key_Tab);
        verify(button("The hole").activeFocus);
        keyClick(Qt.Key_Tab);
        verify(button("On its feet").activeFocus); // Where the pick is.
        keyClick(Qt.Key_Backtab);
        verify(button("The hole").activeFocus);
        keyClick(Qt.Key_Space);
        compare(button("The hole").symbol, "largecircle.fill.circle");
        keyClick(Qt.Key_Tab);
        keyClick(Qt.Key_Tab);
        verify(button("Check my answers").activeFocus);
    }

    function test_a_second_click_on_a_pick_does_not_go_on() {
        take("light");
        answerAll("On its head", "The hole", "The hole");
        verify(shows("2 of 2 answered"));
        compare(World.scores("light"), []);
    }

    function test_tells_assistive_technology_what_is_picked() {
        take("light");
        press("The hole");
        // The template tells it, as soon as somebody listens.
        for (let i = 0; i < 2; ++i) {
            compare(button("The hole").Accessible.name, "The hole");
            verify(button("The hole").checkable && button("The hole").checked);
            verify(button("The wall").checkable && !button("The wall").checked);
            press("The hole"); // once more changes nothing
        }
        press("The wall");
        verify(button("The wall").checked);
        verify(!button("The hole").checked);
    }

    function test_tells_assistive_technology_the_score_with_the_button_that_has_the_focus() {
        take("light");
        answerAll("The hole", "On its feet");
        press("Check my answers");
        verify(button("Try again").activeFocus);
        compare(button("Try again").Accessible.description, "Score: 1 / 2");
    }

    function test_tells_assistive_technology_which_question_an_option_answers() {
        take("light");
        const card = Find.first(page, item => item.prompt !== undefined && item.number === 1);
        compare(card.Accessible.role, Accessible.Grouping);
        compare(card.Accessible.name, "1. " + card.prompt);
    }

    function test_holds_its_column_to_860() {
        take("light");
        page.width = 1090;
        World.settle(page);
        compare(title().mapToItem(page, 0, 0).x, 24);
        compare(title().width, 860 - 2 * 24);
    }
}
