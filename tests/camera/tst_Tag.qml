import QtQuick
import QtTest
import Halvorin.Kit
import Halvorin.Camera
import "../kit/Find.js" as Find

TestCase {
    id: test
    name: "Tag"
    when: windowShown
    width: 300
    height: 200
    visible: true

    Component {
        id: tags
        Tag {
            color: "#40c080"
        }
    }

    function tag(text) {
        return createTemporaryObject(tags, test, { text: text });
    }

    function test_shows_its_word_in_capitals() {
        compare(Find.texts(tag("Beginner")), ["BEGINNER"]);
    }

    function test_shows_markup_as_it_stands() {
        compare(Find.texts(tag("<b>x</b>")), ["<B>X</B>"]);
    }

    function test_is_known_by_the_word_itself() {
        const item = tag("Beginner");
        compare(item.Accessible.name, "Beginner");
        compare(item.Accessible.role, Accessible.StaticText);
        verify(!(Find.text(item, "BEGINNER") instanceof HvText));
    }

    function test_wears_its_color() {
        const item = tag("Beginner");
        compare(String(Find.text(item, "BEGINNER").color), "#40c080");
        compare(String(item.fillFrom), String(Qt.alpha("#40c080", 0.13)));
        compare(String(item.strokeFrom), String(Qt.alpha("#40c080", 0.5)));
        compare(item.strokeWidth, 0.8);
    }

    function test_leaves_room_around_its_word() {
        const item = tag("Beginner");
        const label = Find.text(item, "BEGINNER");
        compare(item.implicitWidth, label.implicitWidth + 14);
        compare(item.implicitHeight, label.implicitHeight + 5);
        compare(label.font.pointSize, 9.5);
    }

    function test_without_a_word_is_not_there() {
        verify(!tag("").visible);
    }
}
