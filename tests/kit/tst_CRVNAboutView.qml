import QtQuick
import QtTest
import Halvorin.Kit
import "Find.js" as Find

TestCase {
    id: test
    name: "CRVNAboutView"
    when: windowShown
    width: 440
    height: 380
    visible: true

    Component {
        id: views
        CRVNAboutView {
            width: 440
            height: 380
        }
    }

    function test_tells_whose_it_is() {
        const view = createTemporaryObject(views, test);
        const lines = Find.texts(view);
        compare(lines.slice(0, 2), [CNUI.appName, CNUI.version]);
        verify(lines.includes("by Corvane (CRVN)"));
        verify(lines.includes("© " + new Date().getFullYear() + " Corvane"));
        verify(Find.button(view, "Corvane Website"));
    }

    function test_has_no_gap_where_there_are_no_lines() {
        const view = createTemporaryObject(views, test);
        waitForRendering(view);
        const version = Find.text(view, CNUI.version);
        const credit = Find.text(view, "by Corvane (CRVN)");
        compare(CNUI.aboutLines(), []);
        compare(credit.mapToItem(view, 0, 0).y - version.mapToItem(view, 0, version.height).y, 6);
    }
}
