import QtQuick
import QtTest
import Halvorin.Kit

TestCase {
    id: test
    name: "TextGlow"
    when: windowShown
    width: 400
    height: 120
    visible: true

    Component {
        id: glows
        Rectangle {
            width: 400
            height: 120
            color: "black"
            TextGlow {
                x: 20
                y: 20
                width: 360
                height: 60
                text: "GLOW"
                font: CNUI.cnFont(21, Font.ExtraBold)
                color: "white"
                alignment: Qt.AlignHCenter
                blur: 9
            }
        }
    }

    function init() {
        ZoomControl.actualSize();
    }
    function cleanup() {
        ZoomControl.actualSize();
    }

    // The first and last columns that are lit.
    function lit(item) {
        const picture = grabImage(item);
        const isLit = x => {
            for (let y = 0; y < picture.height; y += 2) {
                if (picture.red(x, y) > 40)
                    return true;
            }
            return false;
        };
        let first = 0;
        while (first < picture.width && !isLit(first))
            ++first;
        let last = picture.width - 1;
        while (last > first && !isLit(last))
            --last;
        return { first: first, last: last };
    }

    function test_lies_under_its_text_at_every_zoom_data() {
        return ["85%", "100%", "200%"].map(title => ({ tag: title }));
    }
    function test_lies_under_its_text_at_every_zoom(data) {
        ZoomControl.chooseLevel(ZoomControl.levelTitles.indexOf(data.tag));
        const glow = lit(createTemporaryObject(glows, test));
        fuzzyCompare((glow.first + glow.last) / 2, 200, 2);
        verify(glow.last - glow.first > 60, glow.last - glow.first);
        verify(glow.last - glow.first < 110, glow.last - glow.first);
    }
}
