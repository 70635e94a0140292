import QtQuick
import QtQuick.Templates as T
import QtTest
import Halvorin.Kit
import "Find.js" as Find

TestCase {
    id: test
    name: "CNZoomHost"
    when: windowShown
    width: 1200
    height: 900
    visible: true

    Component {
        id: hosts
        CNZoomHost {
            readonly property Item page: page
            Item {
                id: page
                anchors.fill: parent
            }
        }
    }
    Component {
        id: flickables
        Flickable {
            width: 100
            height: 100
            contentWidth: 1000
            contentHeight: 1000
        }
    }

    function init() {
        ZoomControl.actualSize();
    }
    function cleanup() {
        ZoomControl.actualSize();
    }

    function host(width, height, zoomLevel) {
        const item = createTemporaryObject(hosts, test, { width: width, height: height });
        ZoomControl.chooseLevel(ZoomControl.levelTitles.indexOf(zoomLevel));
        return item;
    }
    // The page's upper left and lower right corners as they lie in the window.
    function area(item) {
        return item.page.mapToItem(item, 0, 0, item.page.width, item.page.height);
    }
    function bars(item) {
        const surface = Find.scroller(item);
        return { vertical: surface.T.ScrollBar.vertical.visible, horizontal: surface.T.ScrollBar.horizontal.visible };
    }

    function test_shows_its_content_as_it_is_at_100_percent() {
        const item = host(1000, 700, "100%");
        compare(item.page.width, 1000);
        compare(item.page.height, 700);
        compare(area(item), Qt.rect(0, 0, 1000, 700));
        compare(bars(item), { vertical: false, horizontal: false });
    }

    function test_has_a_smallest_size_of_960_by_640() {
        const item = host(500, 300, "100%");
        compare(item.minSize, Qt.size(960, 640));
        compare(item.page.width, 960);
        compare(item.page.height, 640);
        compare(bars(item), { vertical: true, horizontal: true });
    }

    function test_keeps_its_smallest_size_at_200_percent() {
        const item = host(1000, 700, "200%");
        compare(item.page.width, 960);
        compare(item.page.height, 640);
        compare(area(item), Qt.rect(0, 0, 1920, 1280));
        const surface = Find.scroller(item);
        compare(surface.contentWidth, 1920);
        compare(surface.contentHeight, 1280);
        compare(surface.contentX, 0);
        compare(surface.contentY, 0);
        compare(bars(item), { vertical: true, horizontal: true });
    }

    function test_fills_a_large_window_at_any_zoom() {
        const item = host(1200, 900, "115%");
        fuzzyCompare(item.page.width, 1200 / 1.15, 0.001);
        fuzzyCompare(item.page.height, 900 / 1.15, 0.001);
        fuzzyCompare(area(item).width, 1200, 0.001);
        fuzzyCompare(area(item).height, 900, 0.001);
        compare(bars(item), { vertical: false, horizontal: false });
    }

    function test_shrinks_its_content_below_100_percent() {
        const item = host(1020, 680, "85%");
        fuzzyCompare(item.page.width, 1200, 0.001);
        fuzzyCompare(item.page.height, 800, 0.001);
        fuzzyCompare(area(item).width, 1020, 0.001);
        compare(bars(item), { vertical: false, horizontal: false });
    }

    function test_scrolls_on_the_axis_that_needs_it() {
        const item = host(1200, 600, "100%");
        compare(item.page.width, 1200);
        compare(item.page.height, 640);
        compare(bars(item), { vertical: true, horizontal: false });
    }

    function test_forgives_one_point() {
        const item = host(1000, 639, "100%");
        compare(bars(item), { vertical: false, horizontal: false });
        item.height = 638;
        compare(bars(item), { vertical: true, horizontal: false });
    }

    function test_lays_out_anew_for_another_window_and_keeps_its_content() {
        const item = host(1000, 700, "100%");
        const page = item.page;
        item.width = 1100;
        compare(item.page.width, 1100);
        ZoomControl.zoomIn();
        fuzzyCompare(item.page.width, 960, 0.001);
        verify(item.page === page);
    }

    function test_returns_to_its_origin_when_zoom_or_window_change() {
        const item = host(1000, 700, "200%");
        const surface = Find.scroller(item);
        surface.contentX = 300;
        surface.contentY = 200;
        ZoomControl.zoomOut();
        compare(surface.contentX, 0);
        compare(surface.contentY, 0);
        surface.contentX = 300;
        surface.contentY = 200;
        item.height = 650;
        compare(surface.contentX, 0);
        compare(surface.contentY, 0);
    }

    function test_comes_home_six_times() {
        const item = createTemporaryObject(flickables, test, { contentX: 50, contentY: 60 });
        ZoomControl.scrollHome(item);
        compare(item.contentX, 0);
        compare(item.contentY, 0);
        // Whatever the layout does meanwhile, five more follow.
        for (let i = 0; i < 5; ++i) {
            item.contentX = 50;
            item.contentY = 60;
            tryCompare(item, "contentX", 0);
            compare(item.contentY, 0);
        }
    }

    function test_comes_home_at_the_next_turn_of_the_event_loop() {
        const item = createTemporaryObject(flickables, test);
        ZoomControl.scrollHome(item);
        item.contentY = 60;
        wait(0);
        compare(item.contentY, 0);
    }

    function test_two_requests_end_where_one_does() {
        const item = createTemporaryObject(flickables, test, { contentX: 50, contentY: 60 });
        ZoomControl.scrollHome(item);
        ZoomControl.scrollHome(item);
        compare(item.contentX, 0);
        for (let i = 0; i < 5; ++i) {
            item.contentX = 50;
            tryCompare(item, "contentX", 0);
        }
    }

    function test_a_request_outlives_what_it_was_for() {
        const item = flickables.createObject(test, { contentY: 60 });
        ZoomControl.scrollHome(item);
        item.destroy();
        wait(0);
        ZoomControl.scrollHome(null);
        wait(0);
    }

    function test_leaves_a_reader_where_he_has_scrolled_meanwhile() {
        const item = host(1000, 700, "200%");
        const surface = Find.scroller(item);
        mouseWheel(surface, 500, 300, 0, -120);
        const there = surface.contentY;
        verify(there > 0);
        wait(1700); // after the last of the six requests
        compare(surface.contentY, there);
        ZoomControl.zoomOut();
        compare(surface.contentY, 0);
    }

    function test_zooms_by_the_wheel_with_ctrl() {
        const item = host(1000, 700, "100%");
        mouseWheel(item, 500, 300, 0, 120, Qt.NoButton, Qt.ControlModifier);
        compare(ZoomControl.zoom, 1.15);
        mouseWheel(item, 500, 300, 0, -120, Qt.NoButton, Qt.ControlModifier);
        compare(ZoomControl.zoom, 1);
    }

    function test_zooms_over_a_pane_that_scrolls_and_leaves_the_pane() {
        const item = host(1000, 700, "200%");
        mouseWheel(item, 500, 300, 0, -120, Qt.NoButton, Qt.ControlModifier);
        compare(ZoomControl.zoom, 1.85);
        compare(Find.scroller(item).contentY, 0);
    }

    function test_adds_up_the_small_turns_of_a_touchpad() {
        const item = host(1000, 700, "100%");
        const turn = angle => mouseWheel(item, 500, 300, 0, angle, Qt.NoButton, Qt.ControlModifier);
        for (let i = 0; i < 7; ++i)
            turn(15);
        compare(ZoomControl.zoom, 1);
        turn(15);
        compare(ZoomControl.zoom, 1.15);
        turn(60);
        turn(-60);
        compare(ZoomControl.zoom, 1.15);
        turn(-60);
        compare(ZoomControl.zoom, 1);
    }

    function test_zooms_by_two_fingers() {
        const item = host(1000, 700, "100%");
        const touch = touchEvent(item);
        touch.press(1, item, 450, 300).press(2, item, 550, 300).commit();
        for (const reach of [52, 60, 80, 100]) {
            touch.move(1, item, 500 - reach, 300).move(2, item, 500 + reach, 300).commit();
        }
        compare(ZoomControl.zoom, 2);
        touch.release(1, item, 400, 300).release(2, item, 600, 300).commit();
    }

    function test_shows_bars_just_where_the_interface_is_larger_data() {
        const rows = [];
        for (const zoom of ["85%", "100%", "115%", "130%", "150%", "175%", "200%"]) {
            for (const size of [[900, 620], [1440, 920], [1920, 1200]])
                rows.push({ tag: zoom + " in " + size.join(" x "), zoom: zoom, size: size });
        }
        return rows;
    }
    function test_shows_bars_just_where_the_interface_is_larger(data) {
        const [width, height] = data.size;
        const item = host(width, height, data.zoom);
        item.minSize = Qt.size(1240, 800);
        const zoom = ZoomControl.zoom;
        const scaled = Qt.size(Math.max(width / zoom, 1240) * zoom, Math.max(height / zoom, 800) * zoom);
        const overflows = width + 1 < scaled.width || height + 1 < scaled.height;
        const shown = bars(item);
        compare(shown.horizontal || shown.vertical, overflows);
        compare(shown.horizontal, overflows && scaled.width > width);
        compare(shown.vertical, overflows && scaled.height > height);
    }

    function test_painted_items_get_the_pixels_that_they_cover() {
        const item = host(1000, 700, "100%");
        const capsule = createTemporaryQmlObject("import Halvorin.Kit; Symbol { width: 40; height: 20 }", item.page);
        compare(capsule.textureSize, Qt.size(40, 20));
        ZoomControl.chooseLevel(ZoomControl.levelTitles.indexOf("200%"));
        compare(capsule.textureSize, Qt.size(80, 40));
        ZoomControl.chooseLevel(ZoomControl.levelTitles.indexOf("115%"));
        compare(capsule.textureSize, Qt.size(46, 23));
    }
}
