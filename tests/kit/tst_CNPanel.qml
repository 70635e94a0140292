import QtQuick
import QtTest
import Halvorin.Kit
import "Find.js" as Find

TestCase {
    id: test
    name: "CNPanel"
    when: windowShown
    width: 400
    height: 300
    visible: true

    Component {
        id: panels
        CNPanel {
            readonly property Item inner: box
            Rectangle {
                id: box
                width: 100
                height: 40
            }
        }
    }
    Component {
        id: captions
        CNCaption {
            text: "Modules"
        }
    }
    Component {
        id: pills
        CNAnodizedPill {
            text: "2.0.3"
        }
    }

    function test_has_its_radius_and_padding_unless_told_otherwise() {
        const panel = createTemporaryObject(panels, test);
        compare(panel.radius, 20);
        compare(panel.padding, 12);
        compare(panel.implicitWidth, 124);
        compare(panel.implicitHeight, 64);
        compare(panel.inner.mapToItem(panel, 0, 0), Qt.point(12, 12));
        panel.padding = 24;
        compare(panel.implicitWidth, 148);
    }

    function test_is_shaded_in_the_colors_of_the_kit() {
        const plate = Find.first(createTemporaryObject(panels, test), child => child.fillFrom !== undefined);
        compare(String(plate.fillFrom), String(CNUI.theme.panelTop));
        compare(String(plate.fillTo), String(CNUI.theme.panelBottom));
        compare(plate.strokeWidth, 1);
        compare(String(plate.strokeFrom), String(CNUI.gray(1, 0.35)));
        compare(String(plate.strokeTo), String(CNUI.gray(0, 0.5)));
    }

    function test_a_caption_is_small_and_heavy() {
        const caption = createTemporaryObject(captions, test);
        compare(caption.font.pointSize, 10);
        compare(caption.font.weight, Font.ExtraBold);
        fuzzyCompare(caption.font.letterSpacing, 1.1, 0.02);
        compare(String(caption.color), String(CNUI.theme.dim));
        compare(caption.text, "Modules");
    }

    function test_a_pill_leaves_room_around_its_text() {
        const pill = createTemporaryObject(pills, test);
        const words = Find.text(pill, "2.0.3");
        compare(words.font.pointSize, 10);
        compare(words.font.weight, Font.ExtraBold);
        compare(pill.implicitWidth, words.implicitWidth + 18);
        compare(pill.implicitHeight, words.implicitHeight + 6);
        compare(pill.Accessible.name, "2.0.3");
    }
}
