import QtQuick
import QtTest
import Halvorin.Kit
import Halvorin.Camera
import "../kit/Find.js" as Find

TestCase {
    id: test
    name: "Engraved"
    when: windowShown
    width: 300
    height: 200
    visible: true

    Component {
        id: letterings
        Engraved {
            c: CameraPalette.current
            text: "Crvn Halvorin"
            size: 13
        }
    }

    function test_is_heavy_unless_told_otherwise() {
        const item = createTemporaryObject(letterings, test);
        compare(item.weight, Font.ExtraBold);
        for (const copy of Find.all(item, Find.isText))
            compare(copy.font.weight, Font.ExtraBold);
        item.weight = Font.Bold;
        for (const copy of Find.all(item, Find.isText))
            compare(copy.font.weight, Font.Bold);
    }

    function test_leaves_the_words_as_they_are() {
        const item = createTemporaryObject(letterings, test);
        compare(Find.texts(item), ["Crvn Halvorin", "Crvn Halvorin", "Crvn Halvorin"]);
    }

    function test_is_cut_between_a_lit_and_a_dark_edge() {
        const item = createTemporaryObject(letterings, test);
        const [lit, dark, ink] = Find.all(item, Find.isText);
        compare(String(lit.color), String(Qt.rgba(1, 1, 1, 0.14)));
        compare(String(dark.color), String(Qt.rgba(0, 0, 0, 0.85)));
        compare(String(ink.color), String(CameraPalette.current.engrave));
        verify(lit.y > ink.y);
        verify(dark.y < ink.y);
    }

    function test_has_size_and_tracking() {
        const item = createTemporaryObject(letterings, test);
        for (const copy of Find.all(item, Find.isText)) {
            compare(copy.font.pointSize, 13);
            fuzzyCompare(copy.font.letterSpacing, 13 * 0.14, 0.02);
        }
    }

    function test_is_read_out_once() {
        const item = createTemporaryObject(letterings, test);
        compare(item.Accessible.name, "Crvn Halvorin");
        for (const copy of Find.all(item, Find.isText))
            verify(!(copy instanceof HvText));
    }
}
