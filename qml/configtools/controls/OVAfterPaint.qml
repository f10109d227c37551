// Runs blocking work on the main thread after the window has shown its busy state.
import QtQuick

Item {
    id: root

    // Internal state. The owner calls run() only.
    property var work: null  // the function that waits; null for none
    property int frames: 0  // frames of the window since run()

    /// Calls the function `work` once, two frames later, as the next frame may already be in progress, or after a
    /// second if the window renders no frames. Work that still waits from an earlier call is dropped. If the second
    /// frame of that call is already shown, the new work runs in its place, without waiting for further frames.
    function run(work) {
        root.work = work;
        frames = 0;
        timeout.restart();
        Window.window?.update();
    }

    /// Runs the work that still waits, if there is any.
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
