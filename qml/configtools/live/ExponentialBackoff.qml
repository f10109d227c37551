// Delay before a retry. It grows with each consecutive failure, up to 30 s.
import QtQuick

Timer {
    id: root

    property int failures: 0  // consecutive failures
    property int secondsLeft: 0   // until elapsed()
    readonly property var delays: [1, 2, 4, 8, 15, 30]  // in seconds, by the number of failures
    signal elapsed

    function fail() {
        failures += 1;
        secondsLeft = delays[Math.min(failures, delays.length) - 1];
        restart();
    }

    /// Resets the delay after a success.
    function reset() {
        stop();
        failures = 0;
    }

    interval: 1000
    repeat: true
    onTriggered: {
        secondsLeft -= 1;
        if (secondsLeft > 0)
            return;
        stop();
        elapsed();
    }
}
