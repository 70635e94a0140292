import QtQuick
import QtTest
import Halvorin.Kit

TestCase {
    id: test
    name: "HvText"
    when: windowShown
    width: 400
    height: 300
    visible: true

    Component {
        id: words
        HvText {}
    }
    TextMetrics {
        id: metrics
    }

    function test_shows_markup_as_it_stands_data() {
        return [
            { tag: "bold", text: "<b>x</b>" },
            { tag: "picture", text: "<img src=x>" },
            { tag: "link", text: "<a href='x'>y</a>" },
            { tag: "entity", text: "&lt;&amp;" },
            { tag: "document", text: "<html><body>x</body></html>" },
        ];
    }
    function test_shows_markup_as_it_stands(data) {
        const item = createTemporaryObject(words, test, { text: data.text });
        compare(item.textFormat, Text.PlainText);
        // A format that was guessed would show fewer letters.
        metrics.font = item.font;
        metrics.text = data.text;
        fuzzyCompare(item.contentWidth, metrics.advanceWidth, 1);
    }

    function test_is_known_by_its_words() {
        const item = createTemporaryObject(words, test, { text: "<b>x</b>" });
        compare(item.Accessible.role, Accessible.StaticText);
        compare(item.Accessible.name, "<b>x</b>");
        item.text = "other";
        compare(item.Accessible.name, "other");
    }

    function test_takes_font_and_color_from_the_kit() {
        const item = createTemporaryObject(words, test, { text: "x" });
        compare(item.font.family, CNUI.cnFont(12.5).family);
        compare(item.font.pointSize, 12.5);
        compare(String(item.color), String(CNUI.theme.text));
    }
}
