// Rests after a failure, longer after each further one, and says when to try again.
import QtQuick

Timer {
    id: root

    property int failures: 0  // one after another
    property int seconds: 0   // that are left
    readonly property var rests: [1, 2, 4, 8, 15, 30]  // seconds, after so many failures
    signal over

    function fail() {
        failures += 1;
        seconds = rests[Math.min(failures, rests.length) - 1];
        restart();
    }

    /// It went well: the next rest is a short one again.
    function settle() {
        stop();
        failures = 0;
    }

    interval: 1000
    repeat: true
    onTriggered: {
        seconds -= 1;
        if (seconds > 0)
            return;
        stop();
        over();
    }
}
