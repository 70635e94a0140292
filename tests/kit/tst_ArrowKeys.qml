import QtQuick
import QtTest
import Halvorin.Kit
import "Find.js" as Find

TestCase {
    id: test
    name: "ArrowKeys"
    when: windowShown
    width: 400
    height: 300
    visible: true

    Component {
        id: grids
        Grid {
            id: grid
            property int scrolls: 0
            property int cells: 6
            columns: 3
            spacing: 10
            Keys.onDownPressed: ++grid.scrolls
            ArrowKeys {
                id: arrows
            }
            function enter() {
                return arrows.enter();
            }
            Repeater {
                model: grid.cells
                delegate: Pressable {
                    required property int index
                    width: 60
                    height: 30
                    label: String(index)
                }
            }
        }
    }
    property Grid grid

    function make(properties) {
        grid = createTemporaryObject(grids, test, properties ?? {});
        waitForRendering(grid);
    }
    function focused() {
        return Find.all(grid, item => item.activeFocus && item.label !== undefined).map(item => item.label).join();
    }

    function test_go_to_the_neighbor_in_their_direction() {
        make();
        verify(grid.enter());
        compare(focused(), "0");
        for (const [key, label] of [[Qt.Key_Right, "1"], [Qt.Key_Down, "4"], [Qt.Key_Left, "3"], [Qt.Key_Up, "0"],
                                    [Qt.Key_End, "5"], [Qt.Key_Home, "0"]]) {
            keyClick(key);
            compare(focused(), label);
        }
    }

    function test_stay_at_an_edge_and_leave_the_key_to_what_is_around() {
        make();
        grid.enter();
        keyClick(Qt.Key_Left);
        keyClick(Qt.Key_Up);
        compare(focused(), "0");
        keyClick(Qt.Key_End);
        keyClick(Qt.Key_Down);
        compare(focused(), "5");
        compare(grid.scrolls, 1);
    }

    function test_show_the_focus_as_the_tab_key_does() {
        make();
        grid.enter();
        keyClick(Qt.Key_Right);
        verify(Find.button(grid, "1").visualFocus);
    }

    function test_pass_over_what_cannot_be_used() {
        make();
        grid.enter();
        Find.button(grid, "1").enabled = false;
        keyClick(Qt.Key_Right);
        compare(focused(), "2");
    }

    function test_leave_keys_with_a_modifier_alone() {
        make();
        grid.enter();
        keyClick(Qt.Key_Right, Qt.ControlModifier);
        compare(focused(), "0");
    }

    function test_enter_an_empty_group_in_vain() {
        make({ cells: 0 });
        verify(!grid.enter());
    }
}
