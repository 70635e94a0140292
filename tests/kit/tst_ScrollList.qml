import QtQuick
import QtTest
import Halvorin.Kit
import "Find.js" as Find

TestCase {
    id: test
    name: "ScrollList"
    when: windowShown
    width: 300
    height: 400
    visible: true

    property ScrollList list

    Component {
        id: lists
        ScrollList {
            width: 300
            height: 400
            focus: true
            model: 3000
            header: Item {
                height: 150
            }
            delegate: Item {
                required property int index
                objectName: "row " + index
                width: 300
                height: 20 + index % 7 * 15
            }
        }
    }

    function init() {
        list = createTemporaryObject(lists, test);
        list.forceActiveFocus();
        list.forceLayout();
    }
    function row(index) {
        return Find.first(list, item => item.objectName === "row " + index);
    }
    function inSight(item) {
        const y = item?.mapToItem(list, 0, 0).y ?? -1000;
        return y + item.height > 0 && y < list.height;
    }

    function test_makes_what_is_in_sight_and_a_little_more() {
        verify(row(0));
        verify(!row(100));
        compare(list.contentY, -150);
    }

    function test_the_wheel_moves_it() {
        mouseWheel(list, 150, 200, 0, -120);
        compare(list.contentY, -150 + 60);
        mouseWheel(list, 150, 200, 0, 240);
        compare(list.contentY, -150);
    }

    function test_a_drag_of_the_mouse_does_not_move_it() {
        mouseDrag(list, 150, 300, 0, -200);
        compare(list.contentY, -150);
    }

    function test_home_and_end_reach_its_ends() {
        // The first guess of its height may be short of the end.
        tryVerify(() => {
            keyClick(Qt.Key_End);
            list.forceLayout();
            return row(2999) && inSight(row(2999));
        });
        compare(list.atYEnd, true);
        keyClick(Qt.Key_Home);
        list.forceLayout();
        verify(inSight(row(0)));
        compare(list.contentY, list.originY);
    }

    function test_pages_through_all_of_it() {
        keyClick(Qt.Key_PageDown);
        compare(list.contentY, -150 + 400 - 48);
        keyClick(Qt.Key_Up);
        compare(list.contentY, -150 + 400 - 96);
    }
}
