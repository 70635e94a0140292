import QtQuick
import QtTest
import Halvorin.Camera
import Halvorin.Simulator
import Halvorin.Testing
import "../../kit/Find.js" as Find

TestCase {
    id: test
    name: "LensLabView"
    when: windowShown
    width: 1400
    height: 1100
    visible: true

    Component {
        id: labs
        LensLabView {
            width: 1070
            height: 1000
            c: CameraPalette.current
        }
    }
    property Item lab

    function init() {
        World.begin();
        lab = createTemporaryObject(labs, test);
        World.settle(lab);
    }
    function dial(title) {
        return Find.first(lab, item => item.scaleOfStops !== undefined && item.title === title);
    }
    function slider(title) {
        return Find.first(lab, item => item.Accessible.role === Accessible.Slider && item.Accessible.name === title);
    }
    function picker(title) {
        return Find.first(lab, item => item.displayText !== undefined && item.title === title);
    }
    function lens(label) {
        return Find.button(lab, label);
    }
    function rows() {
        return Find.all(lab, item => item.disc !== undefined);
    }
    function pictures() {
        return Find.all(lab, item => item.Accessible.name.startsWith("Picture at "));
    }
    function settle() {
        World.settle(lab);
    }

    function test_begins_with_four_lenses() {
        verify(Find.text(lab, "LENS LAB"));
        compare(Find.buttons(lab).filter(button => button.checkable).map(button => button.label),
                ["f/1.2", "f/1.4", "f/1.5", "f/1.8", "f/2", "f/2.8", "f/4", "f/5.6"]);
        compare(Find.buttons(lab).filter(button => button.prominent).map(button => button.label),
                ["f/1.4", "f/1.8", "f/2.8", "f/5.6"]);
        compare(picker("Light").displayText, "Living room at night");
        compare(picker("Format").displayText, "Full frame (36 × 24 mm)");
        compare(dial("ISO").value, 1600);
        compare(dial("Focal length").value, 50);
        compare(slider("Subject distance (focus)").Accessible.description, "2.5 m");
        compare(slider("Background distance").Accessible.description, "15 m");
    }

    function test_shows_the_comparison_as_a_table() {
        compare(rows().map(row => Find.texts(row)), [
            ["f/1.4", "16.0× more (+4.00 stops)", "1/500", "  sharp", "0.61 mm · 1.7%", "20 cm deep"],
            ["f/1.8", "9.7× more (+3.27 stops)", "1/320", "  sharp", "0.47 mm · 1.3%", "26 cm deep"],
            ["f/2.8", "4.0× more (+2.00 stops)", "1/125", "  sharp", "0.30 mm · 0.8%", "40 cm deep"],
            ["f/5.6", "baseline", "1/30", "  shaky", "0.15 mm · 0.4%", "81 cm deep"]]);
        compare(String(Find.text(rows()[0], "  sharp").color), String(CameraPalette.current.good));
        compare(String(Find.text(rows()[3], "  shaky").color), String(CameraPalette.current.warn));
        compare(rows()[3].Accessible.name, "f/5.6. Light gathered: baseline. Shutter needed: 1/30, shaky. Background blur: 0.15 mm · 0.4%. Depth of field: 81 cm deep");
    }

    function test_draws_the_discs_to_scale() {
        const disc = row => Find.first(row, item => item.fillFrom !== undefined && item.width === item.height);
        compare(disc(rows()[0]).width, 34);
        fuzzyCompare(disc(rows()[2]).width, 17, 0.01);
        fuzzyCompare(disc(rows()[3]).width, 8.5, 0.01);
    }

    function test_adds_and_removes_lenses() {
        mouseClick(lens("f/1.2"));
        settle();
        compare(rows().map(row => row.label), ["f/1.2", "f/1.4", "f/1.8", "f/2.8", "f/5.6"]);
        verify(lens("f/1.2").prominent);
        mouseClick(lens("f/5.6"));
        settle();
        compare(rows().map(row => row.label), ["f/1.2", "f/1.4", "f/1.8", "f/2.8"]);
        compare(rows()[3].light, "baseline");
    }

    function test_keeps_the_last_two() {
        mouseClick(lens("f/2.8"));
        mouseClick(lens("f/5.6"));
        for (const label of ["f/1.4", "f/1.8"]) {
            mouseClick(lens(label));
            verify(lens(label).prominent);
            verify(lens(label).checked);
        }
        settle();
        compare(rows().map(row => row.label), ["f/1.4", "f/1.8"]);
        // Those that refused still answer.
        mouseClick(lens("f/4"));
        mouseClick(lens("f/1.4"));
        verify(!lens("f/1.4").checked);
        compare(rows().map(row => row.label), ["f/1.8", "f/4"]);
    }

    function test_renders_a_picture_for_each_lens() {
        compare(pictures().map(picture => picture.Accessible.name), ["Picture at f/1.4", "Picture at f/1.8", "Picture at f/2.8", "Picture at f/5.6"]);
        for (const picture of pictures()) {
            tryVerify(() => !Find.first(picture, item => item.empty !== undefined).empty);
            fuzzyCompare(picture.width / picture.height, 1.6, 0.01);
        }
        verify(Find.text(lab, "f/1.4  1/500"));
    }

    function test_follows_its_controls() {
        dial("ISO").moved(3200);
        compare(rows()[0].shutter, "1/1000");
        picker("Light").chosen("sun");
        verify(!rows()[3].shaky);
        dial("Focal length").moved(14);
        slider("Subject distance (focus)").value = 10;
        compare(rows()[3].depth, "to infinity");
        picker("Format").chosen("66");
        compare(picker("Format").displayText, "120 film, 6 × 6 (56 × 56 mm)");
    }

    function test_moves_the_nearest_background_with_the_subject() {
        compare(slider("Background distance").minimumValue, 3);
        slider("Subject distance (focus)").value = 9;
        compare(slider("Background distance").minimumValue, 9.5);
        compare(slider("Background distance").maximumValue, 100);
        compare(slider("Subject distance (focus)").minimumValue, 0.5);
        compare(slider("Subject distance (focus)").maximumValue, 10);
    }

    function test_is_independent_of_an_earlier_visit() {
        mouseClick(lens("f/1.2"));
        lab.destroy();
        wait(0);
        lab = createTemporaryObject(labs, test);
        compare(rows().map(row => row.label), ["f/1.4", "f/1.8", "f/2.8", "f/5.6"]);
    }

    function test_explains_the_table() {
        const note = Find.first(lab, item => item.Accessible.role === Accessible.Document);
        compare(note.Accessible.name, "Reading the table");
    }

    function test_cuts_nothing_however_wide_the_display_is() {
        for (const label of ["f/1.2", "f/1.5", "f/2", "f/4"])
            mouseClick(lens(label));
        picker("Light").chosen("moon");
        for (const width of [870, 1070, 1324]) {
            lab.width = width;
            settle();
            compare(pictures().length, 8);
            for (const item of Find.all(lab, item => Find.isText(item) && item.visible && item.text !== "")) {
                verify(!item.truncated, "cut at " + width + ": " + item.text);
                verify(item.mapToItem(lab, item.width, 0).x <= lab.width + 0.5, "beyond the edge at " + width + ": " + item.text);
            }
            for (const row of rows()) {
                const cells = Find.all(row, Find.isText);
                for (let i = 1; i < cells.length; ++i)
                    verify(cells[i].x >= cells[i - 1].x + cells[i - 1].width - 0.5, cells[i].text);
            }
        }
    }
}
