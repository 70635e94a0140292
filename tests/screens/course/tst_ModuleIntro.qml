import QtQuick
import QtTest
import Halvorin.Camera
import Halvorin.Screens
import Halvorin.Shell
import Halvorin.Testing
import "../../kit/Find.js" as Find

TestCase {
    id: test
    name: "ModuleIntro"
    when: windowShown
    width: 800
    height: 700
    visible: true

    Component {
        id: intros
        ModuleIntro {
            width: 600
            height: 640
            c: CameraPalette.current
        }
    }

    function init() {
        World.begin();
    }
    function introduce(moduleID) {
        const intro = createTemporaryObject(intros, test, { moduleID: moduleID });
        World.settle(intro);
        return intro;
    }

    function test_tells_of_its_module() {
        const intro = introduce("light");
        compare(Find.texts(intro), ["BEGINNER", "LIGHT AND THE CAMERA", "What happens between the scene and the file.",
                                    "1", "A hole in the dark", "7 min", "2", "A lens in the hole", "5 min",
                                    "Take the module quiz (2 questions)"]);
        compare(String(Find.text(intro, "BEGINNER").color), String(CameraPalette.current.good));
    }

    function test_counts_lessons_from_one_in_each_module() {
        compare(Find.texts(introduce("time")).slice(3, 6), ["1", "The shutter", "12 min"]);
    }

    function test_shows_a_lesson_and_leaves_the_contents_alone() {
        const intro = introduce("light");
        mouseClick(Find.buttons(intro)[1]);
        compare(World.lessonID(), "l2");
        compare(World.moduleID(), "none");
        compare(World.quizModuleID(), "none");
    }

    function test_shows_its_quiz() {
        const intro = introduce("light");
        const quiz = Find.button(intro, "Take the module quiz (2 questions)");
        verify(quiz.prominent);
        verify(!quiz.compact);
        compare(quiz.symbol, "checklist");
        mouseClick(quiz);
        compare(World.quizModuleID(), "light");
    }

    function test_offers_a_quiz_without_questions_too() {
        const intro = introduce("later");
        compare(Find.texts(intro), ["CHAPTERS TO COME", "Take the module quiz (0 questions)"]);
        mouseClick(Find.buttons(intro)[0]);
        compare(World.quizModuleID(), "later");
    }

    function test_has_a_placeholder_for_no_module() {
        compare(Find.texts(introduce("")), ["COURSE", "Take the module quiz (0 questions)"]);
    }

    function test_a_lesson_is_known_by_what_it_shows() {
        compare(Find.buttons(introduce("light"))[0].Accessible.name, "Lesson 1: A hole in the dark, 7 min");
    }

    function test_follows_its_module() {
        const intro = introduce("light");
        intro.moduleID = "time";
        compare(Find.buttons(intro).map(button => button.label), ["Lesson 1: The shutter, 12 min", "Take the module quiz (0 questions)"]);
    }
}
