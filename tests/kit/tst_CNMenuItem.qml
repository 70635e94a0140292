import QtQuick
import QtQuick.Templates as T
import QtTest
import Halvorin.Kit
import "Find.js" as Find

TestCase {
    id: test
    name: "CNMenuItem"
    when: windowShown
    width: 400
    height: 300
    visible: true

    Component {
        id: items
        CNMenuItem {}
    }
    Component {
        id: actions
        CNMenuItem {
            action: T.Action {
                text: "&Open"
            }
        }
    }
    function shown(item) {
        compare(Find.texts(item).length, 1);
        compare(item.Accessible.name, Find.texts(item)[0]);
        return item.Accessible.name;
    }

    function test_shows_its_title_character_by_character_data() {
        return ["Course", "Workflows & Software", "Q&A", "&Open", "A & B & C", "A && B", "&", "<b>x</b>"]
            .map(title => ({ tag: title, title: title }));
    }
    function test_shows_its_title_character_by_character(data) {
        compare(shown(createTemporaryObject(items, test, { title: data.title })), data.title);
    }

    function test_takes_an_ampersand_in_its_title_for_no_key() {
        const item = createTemporaryObject(items, test, { title: "Q&A & B" });
        const spy = createTemporaryQmlObject("import QtTest; SignalSpy { signalName: 'triggered' }", test);
        spy.target = item;
        keyClick(Qt.Key_A, Qt.AltModifier);
        keyClick(Qt.Key_Space, Qt.AltModifier);
        compare(spy.count, 0);
    }

    function test_shows_the_text_of_its_action_without_the_mark() {
        compare(shown(createTemporaryObject(actions, test)), "Open");
    }
}
