import QtQuick
import QtTest
import Halvorin.Camera
import Halvorin.Shell

TestCase {
    id: test
    name: "HVScroll"
    when: windowShown
    width: 400
    height: 300
    visible: true

    Component {
        id: scrolls
        HVScroll {
            readonly property Item first: one
            readonly property Item second: two
            width: 300
            height: 200
            c: CameraPalette.current
            padding: 20
            spacing: 10
            Rectangle {
                id: one
                width: parent.width
                height: 100
            }
            Rectangle {
                id: two
                width: parent.width
                height: 300
            }
        }
    }

    function test_stacks_its_content_at_its_own_height() {
        const item = createTemporaryObject(scrolls, test);
        tryCompare(item, "contentHeight", 20 + 100 + 10 + 300 + 20);
        compare(item.first.width, 260);
        compare(item.first.mapToItem(item.contentItem, 0, 0), Qt.point(20, 20));
        compare(item.second.mapToItem(item.contentItem, 0, 0), Qt.point(20, 130));
        compare(item.contentWidth, 300);
    }

    function test_holds_its_column_to_a_width() {
        const item = createTemporaryObject(scrolls, test, { maximumWidth: 200 });
        compare(item.first.width, 160);
        compare(item.first.mapToItem(item, 0, 0).x, 20);
    }

    function test_scrolls_up_and_down_alone() {
        const item = createTemporaryObject(scrolls, test);
        tryCompare(item, "contentHeight", 450);
        item.scrollTo(500, 500);
        compare(item.contentX, 0);
        compare(item.contentY, 250);
    }

    function test_is_called_by_its_screen_unless_it_has_a_name_of_its_own() {
        const item = createTemporaryObject(scrolls, test);
        compare(item.Accessible.role, Accessible.Pane);
        compare(item.Accessible.name, AppModel.screenTitle);
        item.spokenName = "A page";
        compare(item.Accessible.name, "A page");
    }
}
