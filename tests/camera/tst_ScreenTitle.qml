import QtQuick
import QtTest
import Halvorin.Camera
import "../kit/Find.js" as Find

TestCase {
    id: test
    name: "ScreenTitle"
    when: windowShown
    width: 600
    height: 300
    visible: true

    Component {
        id: titles
        ScreenTitle {
            width: 500
            c: CameraPalette.current
            title: "Welcome to campus"
            subtitle: "A complete photography course."
        }
    }

    function test_shows_its_title_in_capitals_and_its_subtitle_as_it_is() {
        const item = createTemporaryObject(titles, test);
        compare(Find.texts(item), ["WELCOME TO CAMPUS", "A complete photography course."]);
    }

    function test_is_a_heading_by_the_title_itself() {
        const item = createTemporaryObject(titles, test);
        const heading = Find.text(item, "WELCOME TO CAMPUS");
        compare(heading.Accessible.role, Accessible.Heading);
        compare(heading.Accessible.name, "Welcome to campus");
    }

    function test_sets_both_in_their_sizes_and_colors() {
        const item = createTemporaryObject(titles, test);
        const heading = Find.text(item, "WELCOME TO CAMPUS");
        compare(heading.font.pointSize, 21);
        compare(heading.font.weight, Font.ExtraBold);
        fuzzyCompare(heading.font.letterSpacing, 1.4, 0.02);
        compare(String(heading.color), String(CameraPalette.current.oledText));
        const subtitle = Find.text(item, "A complete photography course.");
        compare(subtitle.font.pointSize, 12.5);
        compare(subtitle.font.weight, Font.Medium);
        compare(String(subtitle.color), String(CameraPalette.current.oledDim));
    }

    function test_without_subtitle_takes_no_room_for_it() {
        const item = createTemporaryObject(titles, test);
        const heading = Find.text(item, "WELCOME TO CAMPUS");
        item.subtitle = "";
        compare(Find.texts(item), ["WELCOME TO CAMPUS"]);
        tryCompare(item, "height", heading.height);
    }

    function test_wraps_a_long_title() {
        const item = createTemporaryObject(titles, test, { title: "What a camera does: light, a hole, a time, a surface" });
        const heading = Find.all(item, Find.isText)[0];
        verify(heading.lineCount > 1);
        verify(!heading.truncated);
    }

    function test_shows_markup_as_it_stands() {
        const item = createTemporaryObject(titles, test, { title: "<i>x</i>", subtitle: "<b>y</b>" });
        compare(Find.texts(item), ["<I>X</I>", "<b>y</b>"]);
    }
}
