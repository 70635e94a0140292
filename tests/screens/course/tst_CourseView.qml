import QtQuick
import QtTest
import Halvorin.Camera
import Halvorin.Screens
import Halvorin.Shell
import Halvorin.Testing
import "../../kit/Find.js" as Find

TestCase {
    id: test
    name: "CourseView"
    when: windowShown
    width: 1100
    height: 800
    visible: true

    Component {
        id: views
        CourseView {
            x: 20
            y: 20
            width: 900
            height: 640
            c: CameraPalette.current
        }
    }
    property Item view

    function init() {
        World.begin();
        show();
    }
    function show() {
        view = createTemporaryObject(views, test);
    }
    function showCourse(course, withStore) {
        view.destroy();
        wait(0);
        World.begin(course, withStore);
        show();
    }

    // Components are known by the names of their files.
    function part(name) {
        return Find.first(view, item => String(item).startsWith(name + "_") && item.visible);
    }
    // The rows of the contents as a reader sees them.
    function rows() {
        return Find.buttons(part("CourseContents")).map(button => button.label);
    }
    function row(text) {
        return Find.button(part("CourseContents"), text);
    }
    // What stands on the right: a name of a component.
    function pane() {
        return ["QuizView", "LessonReader", "ModuleIntro"].find(name => part(name));
    }
    function press(item) {
        verify(item);
        World.settle(view);
        mouseClick(item);
    }

    function test_begins_with_closed_modules_and_the_introduction_of_the_first() {
        compare(rows(), ["Light and the camera", "Time", "Chapters to come"]);
        for (const title of rows())
            compare(row(title).symbol, "chevron.right");
        compare(pane(), "ModuleIntro");
        compare(part("ModuleIntro").moduleID, "light");
    }

    function test_is_divided_at_290() {
        compare(part("CourseContents").width, 290);
        compare(part("ModuleIntro").mapToItem(view, 0, 0).x, 291);
        compare(part("ModuleIntro").width, 900 - 291);
        compare(part("ModuleIntro").height, 640);
    }

    function test_opens_a_module_and_shows_its_lessons_and_its_quiz() {
        press(row("Light and the camera"));
        compare(rows(), ["Light and the camera", "A hole in the dark", "A lens in the hole", "Module quiz", "Time", "Chapters to come"]);
        compare(row("Light and the camera").symbol, "chevron.down");
        compare(row("Time").symbol, "chevron.right");
    }

    function test_opens_one_module_at_a_time() {
        press(row("Light and the camera"));
        press(row("Time"));
        compare(rows(), ["Light and the camera", "Time", "The shutter", "Module quiz", "Chapters to come"]);
        compare(part("ModuleIntro").moduleID, "time");
    }

    function test_closes_the_open_module() {
        press(row("Light and the camera"));
        press(row("Light and the camera"));
        compare(rows(), ["Light and the camera", "Time", "Chapters to come"]);
        compare(World.moduleID(), "none");
    }

    function test_a_module_without_lessons_still_has_its_quiz() {
        press(row("Chapters to come"));
        compare(rows(), ["Light and the camera", "Time", "Chapters to come", "Module quiz"]);
        compare(part("ModuleIntro").moduleID, "later");
    }

    function test_shows_the_lesson_that_is_pressed() {
        press(row("Light and the camera"));
        press(row("A lens in the hole"));
        compare(pane(), "LessonReader");
        compare(part("LessonReader").lessonID, "l2");
        compare(World.moduleID(), "light");
        compare(row("A lens in the hole").lettering.weight, Font.Bold);
        compare(String(row("A lens in the hole").ink), String(CameraPalette.current.glow));
        compare(row("A hole in the dark").lettering.weight, Font.Normal);
        compare(String(row("A hole in the dark").ink), String(CameraPalette.current.oledText));
    }

    function test_reads_on_in_the_lesson_that_a_click_has_chosen() {
        press(row("Light and the camera"));
        press(row("A hole in the dark"));
        part("LessonReader").contentHeight = 3000; // longer than those of the small course
        keyClick(Qt.Key_PageDown);
        verify(part("LessonReader").contentY > 0);
        // From where the keyboard has put the focus, too.
        row("A lens in the hole").forceActiveFocus(Qt.TabFocusReason);
        press(row("A hole in the dark"));
        verify(part("LessonReader").activeFocus);
    }

    function test_keeps_the_place_of_who_chooses_by_key() {
        press(row("Light and the camera"));
        row("A hole in the dark").forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Return);
        compare(part("LessonReader").lessonID, "l1");
        verify(row("A hole in the dark").activeFocus);
    }

    function test_shows_the_quiz_that_is_pressed() {
        press(row("Light and the camera"));
        press(row("A hole in the dark"));
        compare(String(row("Module quiz").ink), String(CameraPalette.current.warn));
        press(row("Module quiz"));
        compare(pane(), "QuizView");
        compare(part("QuizView").moduleID, "light");
        compare(World.quizModuleID(), "light");
        compare(World.lessonID(), "none");
        compare(String(row("Module quiz").ink), String(CameraPalette.current.glow));
        compare(row("A hole in the dark").lettering.weight, Font.Normal);
    }

    function test_leaves_the_quiz_for_a_lesson() {
        press(row("Light and the camera"));
        press(row("Module quiz"));
        press(row("A hole in the dark"));
        compare(pane(), "LessonReader");
        compare(World.quizModuleID(), "none");
        compare(String(row("Module quiz").ink), String(CameraPalette.current.warn));
    }

    function test_closing_the_open_module_leaves_the_lesson() {
        press(row("Light and the camera"));
        press(row("A hole in the dark"));
        const reader = part("LessonReader");
        press(row("Light and the camera"));
        compare(rows(), ["Light and the camera", "Time", "Chapters to come"]);
        verify(part("LessonReader") === reader);
        compare(reader.lessonID, "l1");
        for (const title of rows())
            compare(String(row(title).ink), String(CameraPalette.current.oledText));
    }

    function test_opening_another_module_leaves_the_lesson() {
        AppModel.openLesson("l1");
        press(row("Time"));
        compare(part("LessonReader").lessonID, "l1");
        compare(row("The shutter").lettering.weight, Font.Normal);
    }

    function test_opening_a_module_leaves_a_quiz() {
        World.showQuiz("light");
        press(row("Time"));
        compare(pane(), "QuizView");
        compare(part("QuizView").moduleID, "light");
    }

    function test_marks_finished_lessons_at_once() {
        AppModel.openLesson("l1");
        compare(row("A hole in the dark").symbol, "circle");
        compare(String(row("A hole in the dark").symbolInk), String(CameraPalette.current.oledDim));
        press(Find.button(part("LessonReader"), "Mark as finished"));
        compare(row("A hole in the dark").symbol, "checkmark.circle.fill");
        compare(String(row("A hole in the dark").symbolInk), String(CameraPalette.current.good));
        compare(row("A hole in the dark").Accessible.description, "Finished");
        compare(row("A lens in the hole").symbol, "circle");
        press(Find.button(part("LessonReader"), "Finished"));
        compare(row("A hole in the dark").symbol, "circle");
        compare(row("A hole in the dark").Accessible.description, "");
        compare(World.finishedLessons(), []);
    }

    function test_opens_the_module_of_the_next_lesson() {
        AppModel.openLesson("l2");
        press(Find.button(part("LessonReader"), "Finish & next lesson"));
        compare(part("LessonReader").lessonID, "l3");
        compare(rows(), ["Light and the camera", "Time", "The shutter", "Module quiz", "Chapters to come"]);
        compare(row("The shutter").lettering.weight, Font.Bold);
        press(Find.button(part("LessonReader"), "Previous"));
        compare(part("LessonReader").lessonID, "l2");
        compare(row("A lens in the hole").symbol, "checkmark.circle.fill");
        compare(row("A lens in the hole").lettering.weight, Font.Bold);
    }

    function test_falls_through_to_what_is_there() {
        AppModel.openModule("no-such-module");
        compare(pane(), "ModuleIntro");
        compare(part("ModuleIntro").moduleID, "light");
        compare(rows(), ["Light and the camera", "Time", "Chapters to come"]);
    }

    function test_goes_from_an_introduction_to_its_lesson_and_its_quiz() {
        AppModel.openModule("light");
        press(Find.button(part("ModuleIntro"), "Lesson 2: A lens in the hole, 5 min"));
        compare(part("LessonReader").lessonID, "l2");
        AppModel.openModule("time");
        press(Find.button(part("ModuleIntro"), "Take the module quiz (0 questions)"));
        compare(pane(), "QuizView");
        compare(part("QuizView").moduleID, "time");
    }

    function test_what_is_opened_from_an_introduction_by_key_has_the_keyboard() {
        for (const [name, page] of [["Lesson 2: A lens in the hole, 5 min", "LessonReader"], ["Take the module quiz (2 questions)", "QuizView"]]) {
            AppModel.openModule("light");
            Find.button(part("ModuleIntro"), name).forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Return);
            compare(pane(), page);
            verify(part(page).activeFocus, page);
        }
    }

    function test_answers_the_keyboard() {
        row("Light and the camera").forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Space);
        compare(World.moduleID(), "light");
        row("A lens in the hole").forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Return);
        compare(World.lessonID(), "l2");
    }

    function test_tells_assistive_technology_which_module_is_open() {
        press(row("Time"));
        compare(row("Time").Accessible.description, "Open");
        compare(row("Light and the camera").Accessible.description, "Closed");
    }

    function test_wraps_titles_and_cuts_none() {
        press(row("Light and the camera"));
        for (const button of Find.buttons(part("CourseContents"))) {
            for (const words of Find.all(button, Find.isText))
                verify(!words.truncated, words.text);
        }
    }

    function test_without_a_store_changes_nothing() {
        showCourse("small", false);
        AppModel.openLesson("l1");
        press(Find.button(part("LessonReader"), "Mark as finished"));
        verify(Find.button(part("LessonReader"), "Mark as finished"));
        compare(row("A hole in the dark").symbol, "circle");
        press(Find.button(part("LessonReader"), "Bookmark"));
        verify(Find.button(part("LessonReader"), "Bookmark"));
        verify(!AppModel.hasMessage);
        press(Find.button(part("LessonReader"), "Finish & next lesson"));
        compare(part("LessonReader").lessonID, "l2");
    }

    function test_without_modules_introduces_the_course() {
        showCourse("empty", true);
        compare(rows(), []);
        compare(pane(), "ModuleIntro");
        verify(Find.text(part("ModuleIntro"), "COURSE"));
        verify(Find.button(part("ModuleIntro"), "Take the module quiz (0 questions)"));
    }
}
