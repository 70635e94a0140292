import QtQuick
import QtTest
import Halvorin.Camera
import Halvorin.Testing
import "../kit/Find.js" as Find

TestCase {
    id: test
    name: "FlowRow"
    when: windowShown
    width: 600
    height: 400
    visible: true

    ListModel {
        id: items
    }
    Component {
        id: rows
        FlowRow {
            width: 500
            c: CameraPalette.current
            model: items
            symbol: "books.vertical"
        }
    }
    Component {
        id: spies
        SignalSpy {
            signalName: "chosen"
        }
    }

    function init() {
        items.clear();
    }
    function fill(titles) {
        titles.forEach((title, i) => items.append({ itemID: "id-" + i, title: title }));
    }
    function row(properties) {
        const item = createTemporaryObject(rows, test, properties ?? {});
        World.settle(item);
        return item;
    }

    function test_without_items_takes_no_height() {
        const item = row();
        compare(item.height, 0);
        verify(!item.visible);
        compare(Find.buttons(item).length, 0);
    }

    function test_takes_no_height_again_once_its_items_are_gone() {
        fill(["Tripod"]);
        const item = row();
        verify(item.height > 0);
        items.clear();
        tryCompare(item, "height", 0);
        verify(!item.visible);
    }

    function test_has_a_small_button_for_each_item() {
        fill(["Tripod", "Ball head", "<b>Filter</b>"]);
        const item = row();
        compare(Find.buttons(item).map(button => button.label), ["Tripod", "Ball head", "<b>Filter</b>"]);
        for (const button of Find.buttons(item)) {
            verify(button.compact);
            verify(!button.prominent);
            compare(button.symbol, "books.vertical");
        }
    }

    function test_tells_the_id_of_the_chosen_item() {
        fill(["Tripod", "Tripod"]);
        const item = row();
        const spy = createTemporaryObject(spies, test, { target: item });
        mouseClick(Find.buttons(item)[1]);
        compare(spy.count, 1);
        compare(spy.signalArguments[0][0], "id-1");
    }

    function test_wraps_within_its_width_with_gaps_of_eight() {
        fill(["One of some", "Two of some", "Three of some", "Four of some", "Five of some", "Six of some", "Seven of some"]);
        const item = row();
        const buttons = Find.buttons(item);
        for (const button of buttons)
            verify(button.x + button.width <= 500);
        const second = buttons.find(button => button.y > 0);
        verify(second);
        compare(second.y, buttons[0].height + 8);
        verify(item.height >= second.y + second.height);
    }

    function test_fills_its_width_with_columns_that_are_alike() {
        // As long as the titles of a lesson on filters, in the room that it has.
        fill(["Lens hood", "Polarizer", "Ten-stop ND filter", "UV filter", "Blower", "Microfiber cloth", "Silica gel"]);
        const item = row({ width: 727 });
        const buttons = Find.buttons(item);
        const columns = buttons.filter(button => button.y === 0).length;
        compare(columns, 4);
        buttons.forEach((button, i) => {
            compare(button.width, buttons[0].width);
            compare(button.x, i % columns * (buttons[0].width + 8));
            verify(!Find.first(button, Find.isText).truncated, button.label);
        });
        const right = buttons[columns - 1].x + buttons[columns - 1].width;
        verify(right <= 727 && right > 727 - columns);
    }

    function test_has_a_column_of_all_its_width_for_long_titles() {
        fill(["This tests your understanding of light | The barber pole effect — a channel", "Another"]);
        const buttons = Find.buttons(row());
        compare(buttons.map(button => button.width), [500, 500]);
        verify(buttons[1].y > 0);
    }

    function test_cuts_a_title_that_is_wider_than_all_of_it() {
        fill(["A title that goes on and on and on and on and on and on and on and on and on and on"]);
        const item = row({ width: 200 });
        const button = Find.buttons(item)[0];
        compare(button.width, 200);
        verify(Find.first(button, Find.isText).truncated);
    }
}
