// Runs a step for each of many things, one after another on the scene's thread: some in a row as long as that
// is quick, then a turn of the event loop, in which the page paints. Until the end the user's input is held
// back by an invisible sheet over the whole window; only Escape gets through, and leaves out what remains.
import QtQuick
import configtools

Item {
    id: root

    readonly property bool running: total > 0
    readonly property real progress: total > 0 ? done / total : 0
    property int total: 0
    property int done: 0
    property string current  // what the step just now is about
    property var job: null
    property bool stopping: false
    property alias stopper: hold.stopper  // the button that stops it, as Escape does

    /// Calls `step` with the place of each thing, then `finish` once with how many there were. `nameOf` gives the name of the thing in a
    /// place, for the foot of the page. Does nothing while another run goes on, and for an empty one.
    function start(count, step, nameOf, finish) {
        if (running || count === 0)
            return;
        job = {step: step, nameOf: nameOf, finish: finish};
        done = 0;
        stopping = false;
        current = job.nameOf(0);
        total = count;
        hold.open();
        turn.interval = 2 * Theme.paintEvery;  // the page shows that work has begun
        turn.start();
    }

    /// Steps for a picture's time; a slow step has its turn alone.
    function work() {
        const begin = Date.now();
        do {
            job.step(done);
            ++done;
        } while (done < total && !stopping && Date.now() - begin < Theme.paintEvery);
        if (done < total && !stopping) {
            current = job.nameOf(done);
            turn.interval = 1;
            turn.start();
            return;
        }
        total = 0;
        current = "";
        hold.release();
        const ended = job;
        job = null;
        ended.finish(done);
    }

    visible: false

    Timer {
        id: turn
        onTriggered: root.work()
    }

    OVInputHold {
        id: hold
        onEscapePressed: root.stopping = true
    }
}
