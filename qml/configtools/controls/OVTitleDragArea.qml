// Moves its frameless window when dragged. If the window system cannot move it, the area does, but not a maximised
// window.
import QtQuick
import configtools

MouseArea {
    id: root

    required property var cursor  // a CLocalConfig; its cursorPos() returns the pointer's screen position
    property point start  // of the press, in the area
    property bool moving: false  // dragged by at least Theme.unit since the last press; stays true after the release
    property bool bySystem: false  // the window system moves the window
    property point grip  // offset from the pointer to the window's corner
    readonly property var target: Window.window  // the window that is moved
    signal maximiseRequested  // by a double click

    /// Moves the window with the pointer.
    function follow() {
        const pointer = cursor.cursorPos();
        target.x = pointer.x + grip.x;
        target.y = pointer.y + grip.y;
    }

    objectName: "titleDragArea"
    onDoubleClicked: maximiseRequested()
    onPressed: mouse => {
        const pointer = cursor.cursorPos();
        grip = Qt.point(target.x - pointer.x, target.y - pointer.y);
        start = Qt.point(mouse.x, mouse.y);
        moving = bySystem = false;
    }
    onPositionChanged: mouse => {
        if (!moving && Math.abs(mouse.x - start.x) + Math.abs(mouse.y - start.y) >= Theme.unit) {
            moving = true;
            bySystem = target.startSystemMove();
        }
        if (moving && !bySystem && target.visibility === Window.Windowed)
            follow();
    }
}
