// Runs blocking work after the window has shown the busy state. run() starts the work two frames later, as the next
// frame may already be in progress, but after a second at the latest. A later call replaces waiting work.
import QtQuick

Item {
    id: root

    property var work: null  // a function
    property int frames: 0

    function run(work) {
        root.work = work;
        frames = 0;
        timeout.restart();
        Window.window?.update();
    }

    function finish() {
        timeout.stop();
        const work = root.work;
        root.work = null;
        if (work)
            work();
    }

    Connections {
        enabled: root.work !== null
        target: root.Window.window

        function onFrameSwapped() {
            root.frames += 1;
            if (root.frames < 2)
                root.Window.window.update();
            else if (root.frames === 2)
                start.start();
        }
    }

    Timer {
        id: start
        interval: 0
        onTriggered: root.finish()
    }

    // A minimised or covered window renders no frames.
    Timer {
        id: timeout
        interval: 1000
        onTriggered: root.finish()
    }
}
