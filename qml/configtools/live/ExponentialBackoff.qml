// Delay before a retry. It grows with each consecutive failure, up to 30 s. The owner retries on elapsed(); `running`
// means that the delay runs.
import QtQuick

Timer {
    id: root

    property int failures: 0  // consecutive failures
    property int secondsLeft: 0   // until elapsed(), while `running`
    readonly property var delays: [1, 2, 4, 8, 15, 30]  // in seconds: after the first failure, the second and so on
    signal elapsed  // the delay has passed; not after stop() or reset(). `failures` is kept

    /// Counts a failure and starts its delay, in place of a running one.
    function fail() {
        failures += 1;
        secondsLeft = delays[Math.min(failures, delays.length) - 1];
        restart();
    }

    /// Stops the delay and sets `failures` to 0: after a success, or when the work ends.
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
