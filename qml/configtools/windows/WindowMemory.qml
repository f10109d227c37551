// Tab and geometry of the main window, which the application restores at its next start.
import QtQuick
import configtools

Item {
    id: root

    required property Window host  // the main window; its geometry is restored before it is shown
    required property var memory  // a ViewMemory: named texts in the settings

    /// The stored tab, an index from 0. Returns 0 if there is none below `tabCount`.
    function tab(tabCount) {
        const stored = Number(memory.text("tab"));
        return Number.isInteger(stored) && stored > 0 && stored < tabCount ? stored : 0;
    }

    /// Writes the tab and the geometry of the window to the settings.
    function write(tab) {
        memory.keep("tab", String(tab));
        memory.keep("window", geometry.text());
        memory.write();
    }

    visible: false

    WindowGeometry {
        id: geometry
        stored: root.memory.text("window")
        window: root.host
    }
}
