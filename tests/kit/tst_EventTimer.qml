import QtQuick
import QtTest
import Halvorin.Kit

TestCase {
    id: test
    name: "EventTimer"
    when: windowShown
    visible: true

    Component {
        id: timers
        EventTimer {
            property int timeouts: 0
            singleShot: true
            onTimeout: ++timeouts
        }
    }

    function test_tells_once_that_its_time_is_up() {
        const timer = createTemporaryObject(timers, test, { interval: 1 });
        wait(20);
        compare(timer.timeouts, 0);
        timer.start();
        verify(timer.active);
        tryCompare(timer, "timeouts", 1);
        verify(!timer.active);
        wait(20);
        compare(timer.timeouts, 1);
    }

    // With Qt Quick's Timer this warns.
    function test_one_may_begin_as_others_end() {
        failOnWarning(/./);
        const ending = createTemporaryObject(timers, test, { interval: 5000 });
        const stillborn = createTemporaryObject(timers, test, { interval: 5000 });
        const beginning = createTemporaryObject(timers, test, { interval: 20 });
        ending.start();
        wait(50);
        ending.stop();
        Qt.callLater(() => beginning.start());
        stillborn.start();
        stillborn.stop();
        tryCompare(beginning, "timeouts", 1);
        compare([ending.timeouts, stillborn.timeouts], [0, 0]);
    }
}
