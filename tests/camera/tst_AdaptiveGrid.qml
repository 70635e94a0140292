import QtQuick
import QtTest
import Halvorin.Camera
import Halvorin.Testing

TestCase {
    id: test
    name: "AdaptiveGrid"
    when: windowShown
    width: 1000
    height: 600
    visible: true

    ListModel {
        id: items
    }
    Component {
        id: grids
        AdaptiveGrid {
            width: 774
            minimumColumnWidth: 250
            spacing: 12
            model: items
            delegate: Item {
                required property int wanted
                readonly property bool isCell: true
                implicitHeight: wanted
            }
        }
    }
    property Item grid

    function init() {
        items.clear();
        for (const wanted of [40, 60, 50, 30, 20])
            items.append({ wanted: wanted });
        grid = createTemporaryObject(grids, test);
    }
    function cells() {
        World.settle(grid);
        return Array.from(grid.children).filter(child => child.isCell);
    }
    function setWidth(width) {
        grid.width = width;
        return cells();
    }

    function test_has_as_many_columns_as_fit_data() {
        // Two columns need 2 · 250 + 12, three 3 · 250 + 24.
        return [
            { tag: "narrower than one", width: 100, columns: 1 },
            { tag: "one", width: 250, columns: 1 },
            { tag: "not quite two", width: 511, columns: 1 },
            { tag: "two", width: 512, columns: 2 },
            { tag: "not quite three", width: 773, columns: 2 },
            { tag: "three", width: 774, columns: 3 },
            { tag: "three with room", width: 900, columns: 3 },
        ];
    }
    function test_has_as_many_columns_as_fit(data) {
        const all = setWidth(data.width);
        compare(all.filter(cell => cell.y === 0).length, data.columns);
        // Equal columns, gaps of 12, and the row filled from edge to edge.
        for (const cell of all)
            fuzzyCompare(cell.width, (data.width - (data.columns - 1) * 12) / data.columns, 0.001);
        const last = all[data.columns - 1];
        fuzzyCompare(last.x + last.width, data.width, 0.001);
    }

    function test_makes_the_cells_of_a_row_as_high_as_its_highest() {
        const all = cells();
        compare(all.map(cell => cell.height), [60, 60, 60, 30, 30]);
        compare(all[3].y, 60 + 12);
    }

    function test_follows_the_height_of_a_cell() {
        items.setProperty(2, "wanted", 90);
        const all = cells();
        compare(all.map(cell => cell.height), [90, 90, 90, 30, 30]);
        compare(all[3].y, 90 + 12);
    }

    function test_arranges_its_cells_anew_for_another_width() {
        const all = setWidth(512);
        compare(all.map(cell => cell.height), [60, 60, 50, 50, 20]);
        compare(all.map(cell => cell.y), [0, 0, 72, 72, 134]);
    }

    function test_follows_its_model() {
        items.append({ wanted: 80 });
        compare(cells().map(cell => cell.height), [60, 60, 60, 80, 80, 80]);
        items.clear();
        compare(cells().length, 0);
        compare(grid.implicitHeight, 0);
    }
}
