// Does work that holds the window up, once the window has painted what it is to show meanwhile: run() after the
// busy state is set, and the work is done two pictures later, since the next one may have been under way already.
// One piece of work at a time: what is asked for while another waits takes its place.
import QtQuick

Item {
    id: root

    property var work: null  // a function
    property int pictures: 0

    function run(work) {
        root.work = work;
        pictures = 0;
        patience.restart();
        Window.window?.update();
    }

    function finish() {
        patience.stop();
        const work = root.work;
        root.work = null;
        if (work)
            work();
    }

    Connections {
        enabled: root.work !== null
        target: root.Window.window

        function onFrameSwapped() {
            root.pictures += 1;
            if (root.pictures < 2)
                root.Window.window.update();
            else if (root.pictures === 2)
                start.start();
        }
    }

    Timer {
        id: start
        interval: 0
        onTriggered: root.finish()
    }

    // A window that is minimised or covered paints nothing.
    Timer {
        id: patience
        interval: 1000
        onTriggered: root.finish()
    }
}
