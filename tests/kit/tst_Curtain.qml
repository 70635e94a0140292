import QtQuick
import QtTest
import Halvorin.Kit

TestCase {
    id: test
    name: "Curtain"
    when: windowShown
    width: 400
    height: 300
    visible: true

    // A pane around a page and a curtain that lies over the page.
    Component {
        id: stages
        ScrollSurface {
            readonly property ScrollSurface page: page
            readonly property Curtain curtain: curtain
            readonly property Pressable button: button
            property int clicks: 0
            id: stage
            width: 200
            height: 100
            contentWidth: 200
            contentHeight: 300
            ScrollSurface {
                id: page
                width: 200
                height: 250
                contentHeight: 1000
                Pressable {
                    id: button
                    width: 100
                    height: 40
                    onClicked: ++stage.clicks
                }
            }
            Curtain {
                id: curtain
                anchors.fill: page
            }
        }
    }
    property ScrollSurface stage

    function init() {
        stage = createTemporaryObject(stages, test);
    }

    function test_hides_what_is_under_it_from_the_mouse() {
        mouseClick(stage, 50, 20);
        compare(stage.clicks, 0);
        mouseMove(stage, 50, 20);
        verify(!stage.button.hovered);
        stage.curtain.visible = false;
        mouseClick(stage, 50, 20);
        compare(stage.clicks, 1);
    }

    function test_hides_what_is_under_it_from_a_finger() {
        touchEvent(stage).press(0, stage, 50, 20).commit().release(0, stage, 50, 20).commit();
        compare(stage.clicks, 0);
    }

    function test_keeps_the_wheel_from_what_is_under_it() {
        mouseWheel(stage, 50, 20, 0, -120);
        compare(stage.page.contentY, 0);
    }

    function test_hands_the_wheel_to_the_pane_around_it() {
        mouseWheel(stage, 50, 20, 0, -120);
        compare(stage.contentY, 60);
        stage.contentY = 200;
        mouseWheel(stage, 50, 20, 0, -120);
        compare([stage.contentY, stage.page.contentY], [200, 0]);
    }
}
