import QtQuick
import QtTest
import Halvorin.Camera
import Halvorin.Screens
import Halvorin.Testing
import "../../kit/Find.js" as Find

TestCase {
    id: test
    name: "RichText"
    when: windowShown
    width: 600
    height: 800
    visible: true

    Component {
        id: richTexts
        RichText {
            width: 400
            c: CameraPalette.current
        }
    }
    Component {
        id: notepads
        TextEdit {
            width: 100
        }
    }

    function init() {
        World.begin();
    }
    function show(text, properties) {
        return createTemporaryObject(richTexts, test, Object.assign({ text: text }, properties ?? {}));
    }
    function words(item) {
        return Find.first(item, child => child.textDocument !== undefined);
    }
    // What stands there, line for line.
    function shown(item) {
        return words(item).getText(0, words(item).length);
    }
    function plates(item) {
        return Find.all(item, child => child.fillFrom !== undefined && child.radius === 10);
    }
    function bars(item) {
        return Find.all(item, child => child.width === 3 && child.color !== undefined);
    }
    function dots(item) {
        return Find.all(item, child => child.width === 5 && child.height === 5 && child.radius === 2.5);
    }

    function test_without_text_has_no_height() {
        const item = show("");
        compare(item.implicitHeight, 0);
        item.text = "Something.";
        tryVerify(() => item.implicitHeight > 0);
        item.text = "";
        tryCompare(item, "implicitHeight", 0);
    }

    function test_without_blocks_has_no_height_data() {
        return [{ tag: "line ends", text: "\n\n\n" }, { tag: "blanks", text: "  \t\n \t " }];
    }
    function test_without_blocks_has_no_height(data) {
        compare(show(data.text).implicitHeight, 0);
    }

    function test_shows_foreign_markup_as_it_stands_data() {
        return ["**bold**", "_x_", "[label](target)", "https://example.org", "<b>x</b>", "<img src=x>",
                "&lt;b&gt;", "##Title", "### Title", "- item", "* item", "•item", ">note", "1. first"]
            .map(line => ({ tag: line, line: line }));
    }
    function test_shows_foreign_markup_as_it_stands(data) {
        const item = show(data.line);
        compare(shown(item), data.line);
        compare(words(item).textFormat, TextEdit.PlainText);
        compare(words(item).linkAt(5, 5), "");
    }

    function test_shows_blocks_without_their_marks() {
        compare(shown(show("## Title\n\nText.\n• one\n> careful")).split("\u2029").join("\n"), "Title\nText.\none\ncareful");
    }

    function test_gives_each_of_equal_lines_its_block() {
        const item = show("• one\n• one\n• one");
        compare(dots(item).length, 3);
        verify(dots(item)[0].y < dots(item)[1].y);
        verify(dots(item)[1].y < dots(item)[2].y);
    }

    function test_a_carriage_return_makes_no_block_of_its_own() {
        const item = show("• one\r\n• two\r\nText.");
        compare(dots(item).length, 2);
        verify(shown(item).startsWith("one"));
        verify(shown(item).endsWith("Text."));
    }

    function test_colors_dots_by_the_theme_and_plates_not() {
        const item = show("• one\n> careful");
        const dotColor = () => String(dots(item)[0].fillFrom);
        const plateColor = () => String(plates(item)[0].fillFrom);
        compare(dotColor(), String(CameraPalette.current.glow));
        compare(plateColor(), String(Qt.rgba(1, 0.78, 0.35, 0.08)));
        World.chooseTheme("brushed-gray");
        compare(dotColor(), String(CameraPalette.current.glow));
        compare(plateColor(), String(Qt.rgba(1, 0.78, 0.35, 0.08)));
    }

    function test_puts_a_bar_on_each_plate() {
        const item = show("> careful\n> and again");
        compare(plates(item).length, 2);
        compare(bars(item).length, 2);
        plates(item).forEach((plate, i) => {
            compare(plate.radius, 10);
            compare(plate.width, 400);
            const bar = bars(item)[i];
            compare(bar.x, 10);
            compare(bar.y, plate.y + 10);
            compare(bar.height, plate.height - 20);
            compare(String(bar.color), String(Qt.rgba(1, 0.78, 0.35, 1)));
        });
    }

    function test_holds_all_of_its_plates() {
        for (const text of ["> careful", "## Title\n> careful", "Text.\n> careful", "> careful\nText."]) {
            const item = show(text);
            for (const plate of plates(item)) {
                verify(plate.y >= -0.01, text);
                verify(plate.y + plate.height <= item.implicitHeight + 1, text);
            }
        }
    }

    function test_wraps_to_the_width_offered_and_shows_all_of_the_text() {
        const item = show("A sentence about light that goes on for a while. ".repeat(12));
        const narrow = item.implicitHeight;
        verify(words(item).lineCount > 5);
        item.width = 590;
        tryVerify(() => item.implicitHeight < narrow);
        compare(words(item).width, 590);
        verify(words(item).contentWidth <= 590);
    }

    function test_has_a_base_size_of_14() {
        compare(show("x").size, 14);
        verify(show("x", { size: 20 }).implicitHeight > show("x").implicitHeight);
    }

    function test_can_be_selected_and_copied_across_blocks() {
        const item = show("## Title\nA paragraph.\n• one\n> careful");
        const text = words(item);
        text.forceActiveFocus();
        text.selectAll();
        text.copy();
        compare(World.copiedText(), "Title\nA paragraph.\none\ncareful");
        text.select(6, 21);
        text.copy();
        compare(World.copiedText(), "A paragraph.\non");
    }

    function test_is_selected_and_copied_by_key() {
        const text = words(show("## Title\nA paragraph."));
        text.forceActiveFocus();
        keySequence(StandardKey.SelectAll);
        compare(text.selectedText.split("\u2029").join("\n"), "Title\nA paragraph.");
        keySequence(StandardKey.Copy);
        compare(World.copiedText(), "Title\nA paragraph.");
    }

    function test_is_selected_by_dragging_over_it() {
        const item = show("## Title\nA paragraph.\n• one\n> careful");
        const text = words(item);
        World.settle(item);
        mousePress(text, 1, 10);
        mouseMove(text, 200, text.height / 2);
        mouseMove(text, text.width - 5, text.height - 14);
        mouseRelease(text, text.width - 5, text.height - 14);
        compare(text.selectedText.split("\u2029").join("\n"), "Title\nA paragraph.\none\ncareful");
    }

    function test_keeps_its_selection_to_itself() {
        const first = words(show("One."));
        const second = words(show("Two.", { y: 200 }));
        first.forceActiveFocus();
        first.selectAll();
        compare(first.selectedText, "One.");
        second.forceActiveFocus();
        tryCompare(first, "selectedText", "");
    }

    function test_is_read_and_selected_by_keyboard() {
        const text = words(show("One line.\nAnd another."));
        text.forceActiveFocus(Qt.TabFocusReason);
        verify(text.cursorVisible);
        keyClick(Qt.Key_Home, Qt.ControlModifier);
        keyClick(Qt.Key_Right);
        keyClick(Qt.Key_Right, Qt.ShiftModifier);
        keyClick(Qt.Key_Right, Qt.ShiftModifier);
        compare(text.selectedText, "ne");
        keySequence(StandardKey.Copy);
        compare(World.copiedText(), "ne");
    }

    function test_has_no_caret_after_a_click_and_leaves_the_arrows_to_the_pane() {
        const text = words(show("One line.\nAnd another."));
        mouseClick(text, 20, 10);
        verify(text.activeFocus);
        verify(!text.cursorVisible);
        const place = text.cursorPosition;
        keyClick(Qt.Key_Down);
        compare(text.cursorPosition, place);
        keyClick(Qt.Key_Right, Qt.ShiftModifier);
        compare(text.selectedText.length, 1);
    }

    function test_can_not_be_edited() {
        const item = show("One.");
        words(item).forceActiveFocus();
        keyClick("x");
        keyClick(Qt.Key_Backspace);
        keyClick(Qt.Key_Delete);
        compare(shown(item), "One.");
        const notepad = createTemporaryObject(notepads, test, { text: "pasted" });
        notepad.selectAll();
        notepad.copy();
        words(item).paste();
        compare(shown(item), "One.");
    }

    function test_is_read_out_block_by_block() {
        const item = show("## Title\nSet f/2.8 and <b>wait</b>.\n• one\n> careful", { title: "A lesson" });
        const text = words(item);
        compare([text.Accessible.role, text.Accessible.name], [Accessible.Document, "A lesson"]);
        const pieces = Find.all(text, child => child.Accessible.name !== "");
        compare(pieces.map(piece => [piece.Accessible.role, piece.Accessible.name]), [
            [Accessible.Heading, "Title"],
            [Accessible.Paragraph, "Set f/2.8 and <b>wait</b>."],
            [Accessible.ListItem, "one"],
            [Accessible.Paragraph, "careful"],
        ]);
        for (let i = 1; i < pieces.length; ++i)
            verify(pieces[i].y >= pieces[i - 1].y + pieces[i - 1].height);
        compare(pieces[2].x, 13);
        verify(pieces.every(piece => piece.x + piece.width <= 400 && !piece.activeFocusOnTab));
    }

    function test_follows_its_text() {
        const item = show("• one\n> careful");
        item.text = "Another text.";
        compare(shown(item), "Another text.");
        compare(dots(item).length, 0);
        compare(plates(item).length, 0);
    }
}
