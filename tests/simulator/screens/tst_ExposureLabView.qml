import QtQuick
import QtTest
import Halvorin.Camera
import Halvorin.Kit
import Halvorin.Simulator
import Halvorin.Testing
import "../../kit/Find.js" as Find

TestCase {
    id: test
    name: "ExposureLabView"
    when: windowShown
    width: 1400
    height: 1000
    visible: true

    Component {
        id: labs
        ExposureLabView {
            width: 1070
            height: 900
            c: CameraPalette.current
        }
    }
    property Item lab

    function init() {
        World.begin();
        show();
    }
    function show() {
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
    function picture() {
        return Find.first(lab, item => item.Accessible.name === "Preview picture");
    }
    // What stands in the panels, as it is read out.
    function line(title) {
        return Find.first(lab, item => item.Accessible.name.startsWith(title + ": "))?.Accessible.name.slice(title.length + 2);
    }
    function pairs() {
        return Find.buttons(lab).filter(button => button.current !== undefined);
    }
    function has(words) {
        return Find.texts(lab).includes(words);
    }

    function test_begins_with_the_default_camera() {
        verify(has("EXPOSURE LAB"));
        verify(has("f/4  1/125  ISO 400"));
        verify(has("Darker than the meter suggests (−1.0 stop)."));
        compare(picker("Light").displayText, "Bright office or gym");
        compare(picker("Sensor / film format").displayText, "Full frame (36 × 24 mm)");
        compare(["Aperture", "Shutter", "ISO", "Focal length"].map(title => dial(title).scaleOfStops.label(dial(title).value)), ["f/4", "1/125", "400", "50mm"]);
        compare(["Subject distance (focus)", "Background distance", "Cyclist speed"].map(title => slider(title).Accessible.description), ["3.0 m", "30 m", "5.0 m/s"]);
        for (const words of ["EXPOSURE MATH", "SAME EXPOSURE, OTHER CHOICES", "DEPTH OF FIELD & MOTION"])
            verify(has(words), words);
    }

    function test_shows_the_picture_once_it_is_there() {
        tryVerify(() => !Find.first(lab, item => item.photo !== undefined && item.empty !== undefined).empty);
        compare(picture().Accessible.role, Accessible.Graphic);
        compare(picture().Accessible.description, "1.0 stop under, background blur 3.8 pixels, streak 5 pixels");
        fuzzyCompare(picture().width / picture().height, 1.6, 0.01);
    }

    function test_photographs_anew_when_a_dial_turns() {
        const photograph = Find.first(lab, item => item.photo !== undefined && item.empty !== undefined);
        tryVerify(() => !photograph.empty);
        let changes = 0;
        photograph.photoChanged.connect(() => ++changes);
        mouseClick(Find.button(dial("Aperture"), "+"));
        verify(has("f/4.5  1/125  ISO 400"));
        tryVerify(() => changes === 1);
    }

    function test_sets_the_shutter_once() {
        mouseClick(Find.button(lab, "Set shutter for me (aperture priority)"));
        verify(has("f/4  1/60  ISO 400"));
        verify(has("Correct exposure (meter at zero)."));
    }

    function test_sets_the_aperture_once() {
        mouseClick(Find.button(lab, "Set aperture for me (shutter priority)"));
        verify(has("f/2.8  1/125  ISO 400"));
    }

    function test_stays_over_where_the_shutter_ends() {
        picker("Light").chosen("sun");
        dial("Aperture").moved(1);
        dial("ISO").moved(102400);
        mouseClick(Find.button(lab, "Set shutter for me (aperture priority)"));
        verify(has("f/1  1/8000  ISO 102400"));
        verify(Find.texts(lab).some(text => text.startsWith("Far too bright: about +")));
    }

    function test_has_the_light_that_an_earlier_visit_left() {
        picker("Light").chosen("candle");
        lab.destroy();
        wait(0);
        show();
        compare(picker("Light").displayText, "Candlelight close up");
        verify(has("Darker than the meter suggests (−5.0 stops).") || has("Far too dark: about −5.0 stops."));
    }

    function test_moves_the_nearest_background_and_not_the_background() {
        slider("Background distance").value = 5;
        compare(slider("Background distance").Accessible.description, "5.0 m");
        slider("Subject distance (focus)").value = 12;
        compare(slider("Background distance").minimumValue, 12.5);
        compare(slider("Background distance").Accessible.description, "5.0 m");
        slider("Subject distance (focus)").value = 0.5;
        compare(slider("Background distance").minimumValue, 1);
    }

    function test_lets_no_control_go_beyond_its_range() {
        for (const row of [["Subject distance (focus)", 0.5, 20], ["Background distance", 3.5, 200], ["Cyclist speed", 0, 15]]) {
            compare(slider(row[0]).minimumValue, row[1]);
            compare(slider(row[0]).maximumValue, row[2]);
        }
    }

    function test_shows_the_arithmetic() {
        compare(line("EV of these settings (ISO 100)"), "10.97");
        compare(line("…adjusted for ISO 400"), "8.97");
        compare(line("Exposure"), "−1.0 stop");
        compare(line("Sharp from"), "2.64 m");
        compare(line("Background blur disc"), "0.19 mm (0.5% of width)");
        dial("Focal length").moved(200);
        compare(line("Angle of view"), "10° across");
        dial("ISO").moved(800);
        compare(line("…adjusted for ISO 800"), "7.97");
    }

    function test_warns_of_shake() {
        const warning = () => Find.texts(lab).find(text => text.startsWith("Slower than about"));
        compare(warning(), undefined);
        dial("Shutter").moved(0.25);
        compare(warning(), "Slower than about 1/50 — use a tripod or stabilization, or camera shake may blur everything.");
    }

    function test_marks_the_pair_that_is_set_and_sets_the_one_that_is_clicked() {
        compare(pairs().length, 11);
        compare(pairs().filter(pair => pair.current).map(pair => pair.label), ["f/4, 1/125, ISO 400"]);
        const other = pairs()[7];
        compare(other.label, "f/11, 1/15, ISO 400");
        other.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Return);
        verify(has("f/11  1/15  ISO 400"));
        verify(pairs().find(pair => pair.label === "f/11, 1/15, ISO 400").current);
        compare(pairs().filter(pair => pair.current).length, 1);
    }

    function test_marks_nothing_between_full_stops() {
        dial("Aperture").moved(4.5);
        compare(pairs().filter(pair => pair.current).length, 0);
    }

    // Every visible text and button lies inside of what is shown, side by side with the others.
    function checkNothingCut(width) {
        for (const item of Find.all(lab, item => Find.isText(item) && item.visible && item.text !== "")) {
            verify(!item.truncated, "cut at " + width + ": " + item.text);
            const right = item.mapToItem(lab, item.width, 0).x;
            verify(right <= lab.width + 0.5, "beyond the edge at " + width + ": " + item.text);
        }
        for (const button of Find.buttons(lab)) {
            verify(button.width >= button.implicitWidth - 0.5 || button.current !== undefined, "narrow at " + width + ": " + button.label);
            verify(button.mapToItem(lab, button.width, 0).x <= lab.width + 0.5, "beyond the edge at " + width + ": " + button.label);
        }
    }

    function test_cuts_nothing_however_wide_the_display_is() {
        dial("Shutter").moved(30);
        for (const width of [870, 1070, 1324]) {
            lab.width = width;
            World.settle(lab);
            checkNothingCut(width);
        }
    }

    function test_lets_the_picture_give_way_first() {
        const dials = Find.first(lab, item => item.controls !== undefined && item.readout === undefined);
        for (const row of [[870, 366], [1070, 566], [1324, 640]]) {
            lab.width = row[0];
            World.settle(lab);
            compare(dials.width, 440);
            compare(picture().width, row[1]);
        }
    }

    function test_is_walked_through_in_reading_order() {
        picker("Light").forceActiveFocus(Qt.TabFocusReason);
        const names = [];
        for (let i = 0; i < 18; ++i) {
            names.push(test.Window.activeFocusItem.Accessible.name);
            keyClick(Qt.Key_Tab);
        }
        compare(names, ["Light",
            "Aperture: step down", "Aperture: step up", "Aperture",
            "Shutter: step down", "Shutter: step up", "Shutter",
            "ISO: step down", "ISO: step up", "ISO",
            "Focal length: step down", "Focal length: step up", "Focal length",
            "Sensor / film format", "Subject distance (focus)", "Background distance", "Cyclist speed",
            "f/1, 1/2000, ISO 400"]);
    }

    function test_brings_the_control_with_the_focus_in_sight() {
        lab.height = 300;
        World.settle(lab);
        picker("Light").forceActiveFocus(Qt.TabFocusReason);
        slider("Cyclist speed").forceActiveFocus(Qt.TabFocusReason);
        const y = slider("Cyclist speed").mapToItem(lab, 0, 0).y;
        verify(y >= 0 && y + slider("Cyclist speed").height <= lab.height, y);
    }
}
