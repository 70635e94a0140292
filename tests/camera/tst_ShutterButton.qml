import QtQuick
import QtTest
import Halvorin.Camera
import Halvorin.Shell
import Halvorin.Testing

TestCase {
    id: test
    name: "ShutterButton"
    when: windowShown
    width: 200
    height: 200
    visible: true

    Component {
        id: shutters
        ShutterButton {
            c: CameraPalette.current
        }
    }

    function init() {
        World.begin();
    }
    function shutter() {
        return createTemporaryObject(shutters, test);
    }

    function test_opens_the_first_lesson_for_a_fresh_user() {
        mouseClick(shutter());
        compare(AppModel.screen, HVScreen.Course);
        compare(World.lessonID(), "l1");
        compare(World.moduleID(), "light");
    }

    function test_opens_the_first_unfinished_lesson() {
        World.finish(["l1", "l2"]);
        mouseClick(shutter());
        compare(AppModel.screen, HVScreen.Course);
        compare(World.lessonID(), "l3");
        compare(World.moduleID(), "time");
    }

    function test_leaves_a_quiz_for_the_lesson() {
        World.showQuiz("time");
        mouseClick(shutter());
        compare(World.quizModuleID(), "none");
        compare(World.lessonID(), "l1");
    }

    function test_opens_the_first_lesson_without_a_store() {
        World.begin("small", false);
        mouseClick(shutter());
        compare(World.lessonID(), "l1");
    }

    function test_does_nothing_in_a_course_without_lessons_data() {
        return [{ tag: "bare" }, { tag: "empty" }];
    }
    function test_does_nothing_in_a_course_without_lessons(data) {
        World.begin(data.tag);
        AppModel.screen = HVScreen.Lens;
        mouseClick(shutter());
        compare(AppModel.screen, HVScreen.Lens);
        compare(World.lessonID(), "none");
        verify(!AppModel.hasMessage);
    }

    function test_has_tip_and_name() {
        const item = shutter();
        compare(item.tip, "Continue the course where you left off");
        compare(item.Accessible.name, "Continue the course");
        compare(item.width, 46);
        compare(item.height, 46);
    }

    function test_answers_the_keyboard() {
        const item = shutter();
        item.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Space);
        compare(World.lessonID(), "l1");
    }
}
