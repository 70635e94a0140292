import QtQuick
import QtTest
import Halvorin.Kit
import "Find.js" as Find

TestCase {
    id: test
    name: "CNTextArea"
    when: windowShown
    width: 400
    height: 300
    visible: true

    property FocusScope page

    Component {
        id: pages
        FocusScope {
            readonly property alias area: area
            width: 400
            height: 300
            focus: true
            Pressable {
                width: 20
                height: 20
                label: "before"
            }
            CNTextArea {
                id: area
                y: 30
                width: 300
                height: 120
                title: "Note"
            }
            Pressable {
                y: 200
                width: 20
                height: 20
                label: "after"
            }
        }
    }

    function init() {
        page = createTemporaryObject(pages, test);
        page.area.focusField();
    }
    function field() {
        return Find.first(page, item => item.selectAll !== undefined);
    }

    function test_takes_several_lines_as_they_are_typed() {
        keyClick("a");
        keyClick(Qt.Key_Return);
        keyClick("b");
        compare(page.area.text, "a\nb");
        verify(page.area.editing);
    }

    function test_interprets_no_markup() {
        page.area.text = "<b>bold</b>";
        compare(field().length, 11);
    }

    function test_tab_goes_on() {
        keyClick(Qt.Key_Tab);
        verify(Find.button(page, "after").activeFocus);
        keyClick(Qt.Key_Backtab);
        verify(field().activeFocus);
        keyClick(Qt.Key_Backtab);
        verify(Find.button(page, "before").activeFocus);
        compare(page.area.text, "");
    }

    function test_keeps_the_line_in_sight_that_is_written_in() {
        page.area.text = "line\n".repeat(60);
        const scroller = Find.scroller(page);
        const inSight = () => {
            const line = field().cursorRectangle;
            return line.y >= scroller.contentY && line.y + line.height <= scroller.contentY + scroller.height;
        };
        for (const place of [field().length, 0, 150, 20, 290]) {
            field().cursorPosition = place;
            verify(inSight(), place);
        }
    }

    function test_breaks_a_word_of_pages_anywhere() {
        compare(field().wrapMode, TextEdit.Wrap);
        page.area.text = "m".repeat(5000);
        compare(field().wrapMode, TextEdit.WrapAnywhere);
        field().remove(100, 5000);
        compare(field().wrapMode, TextEdit.Wrap);
    }

    function test_says_what_it_is() {
        compare(field().Accessible.name, "Note");
        compare(field().Accessible.role, Accessible.EditableText);
        verify(field().Accessible.multiLine);
    }
}
