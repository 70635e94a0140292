import QtQuick
import QtTest
import Halvorin.Kit
import "Find.js" as Find

TestCase {
    id: test
    name: "CNDialog"
    when: windowShown
    width: 700
    height: 500
    visible: true

    // As the window has it: open while there is a message, and told when it closes.
    property bool hasMessage: false
    property string message
    property int dismissals: 0
    property CNDialog dialog

    Component {
        id: dialogs
        CNDialog {
            title: "A Program"
            message: test.message
            visible: test.hasMessage
            onClosed: {
                ++test.dismissals;
                test.hasMessage = false;
            }
        }
    }
    Component {
        id: keyCounters
        Item {
            property int keys: 0
            focus: true
            Keys.onPressed: ++keys
        }
    }

    function init() {
        hasMessage = false;
        message = "Something <b>happened</b>.";
        dismissals = 0;
        dialog = createTemporaryObject(dialogs, test);
    }
    function cleanup() {
        hasMessage = false;
        tryVerify(() => !dialog.visible);
        ZoomControl.actualSize();
    }
    function show() {
        hasMessage = true;
        tryVerify(() => dialog.opened);
        // Its height follows its words once they are laid out.
        const ok = Find.button(dialog.contentItem, "OK");
        tryVerify(() => dialog.height > ok.height + 48);
    }

    function test_shows_title_message_and_button_as_they_stand() {
        show();
        verify(Find.text(dialog.contentItem, "A Program"));
        verify(Find.text(dialog.contentItem, "Something <b>happened</b>."));
        const buttons = Find.buttons(dialog.contentItem);
        compare(buttons.length, 1);
        compare(buttons[0].label, "OK");
    }

    function test_reads_out_title_and_message() {
        show();
        compare(dialog.contentItem.Accessible.role, Accessible.AlertMessage);
        compare(dialog.contentItem.Accessible.name, "A Program. Something <b>happened</b>.");
    }

    function test_is_dismissed_by_key_data() {
        return [
            { tag: "escape", key: Qt.Key_Escape },
            { tag: "return", key: Qt.Key_Return },
            { tag: "enter", key: Qt.Key_Enter },
            { tag: "space", key: Qt.Key_Space },
        ];
    }
    function test_is_dismissed_by_key(data) {
        show();
        keyClick(data.key);
        tryVerify(() => !dialog.visible);
        compare(dismissals, 1);
        verify(!hasMessage);
    }

    function test_is_dismissed_by_its_button() {
        show();
        mouseClick(Find.button(dialog.contentItem, "OK"));
        tryVerify(() => !dialog.visible);
        compare(dismissals, 1);
    }

    function test_is_not_dismissed_by_a_click_beside_it() {
        show();
        mouseClick(test, 5, 5);
        verify(dialog.visible);
        compare(dismissals, 0);
    }

    function test_opens_again_for_the_next_message() {
        for (const key of [Qt.Key_Return, Qt.Key_Escape, Qt.Key_Return]) {
            show();
            keyClick(key);
            tryVerify(() => !dialog.visible);
        }
        compare(dismissals, 3);
    }

    function test_keeps_the_keyboard_from_what_lies_under_it() {
        const under = createTemporaryObject(keyCounters, test);
        under.forceActiveFocus();
        show();
        keyClick(Qt.Key_A);
        keyClick(Qt.Key_Down);
        compare(under.keys, 0);
    }

    function test_keeps_the_mouse_from_what_lies_under_it() {
        const under = createTemporaryQmlObject("import QtQuick; MouseArea { property int clicks: 0; width: 60; height: 60; onClicked: ++clicks }", test);
        show();
        mouseClick(test, 20, 20);
        compare(under.clicks, 0);
    }

    function test_stands_in_the_middle_of_the_window_and_within_it() {
        for (const level of ["85%", "100%", "150%", "200%"]) {
            ZoomControl.chooseLevel(ZoomControl.levelTitles.indexOf(level));
            show();
            verify(dialog.width <= dialog.parent.width - 32, level);
            fuzzyCompare(dialog.x + dialog.width / 2, dialog.parent.width / 2, 1);
            fuzzyCompare(dialog.y + dialog.height / 2, dialog.parent.height / 2, 1);
            hasMessage = false;
            tryVerify(() => !dialog.visible);
        }
    }

    function test_is_magnified_with_the_interface() {
        show();
        const plain = dialog.width;
        compare(plain, 420);
        ZoomControl.chooseLevel(ZoomControl.levelTitles.indexOf("150%"));
        compare(dialog.width, 630);
    }

    function test_shows_all_of_a_long_message() {
        message = "It went wrong, and this is why. ".repeat(12);
        show();
        const words = Find.text(dialog.contentItem, message);
        verify(words);
        verify(!words.truncated);
        verify(words.lineCount > 3);
        const ok = Find.button(dialog.contentItem, "OK");
        const bottom = item => item.mapToItem(dialog.contentItem, 0, item.height).y;
        tryVerify(() => bottom(words) < ok.mapToItem(dialog.contentItem, 0, 0).y && bottom(ok) <= dialog.height);
    }

    Component {
        id: questions
        CNDialog {
            title: "Delete it?"
            message: "It can't be undone."
            buttonTitle: "Delete"
            cancelTitle: "Keep"
            destructive: true
        }
    }
    SignalSpy {
        id: accepted
        signalName: "accepted"
    }

    function ask() {
        const question = createTemporaryObject(questions, test);
        accepted.target = question;
        accepted.clear();
        question.open();
        tryVerify(() => question.opened);
        return question;
    }

    function test_a_question_has_two_answers_and_begins_with_the_harmless_one() {
        const question = ask();
        compare(Find.buttons(question.contentItem).map(button => button.label), ["Keep", "Delete"]);
        verify(Find.button(question.contentItem, "Keep").activeFocus);
        keyClick(Qt.Key_Return);
        tryVerify(() => !question.visible);
        compare(accepted.count, 0);
    }

    function test_a_question_is_accepted_by_its_button_alone() {
        const question = ask();
        keyClick(Qt.Key_Tab);
        verify(Find.button(question.contentItem, "Delete").activeFocus);
        keyClick(Qt.Key_Return);
        tryVerify(() => !question.visible);
        compare(accepted.count, 1);
    }

    function test_escape_is_no_answer_to_a_question() {
        const question = ask();
        keyClick(Qt.Key_Escape);
        tryVerify(() => !question.visible);
        compare(accepted.count, 0);
    }
}
