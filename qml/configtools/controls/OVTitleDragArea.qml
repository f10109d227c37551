// Moves its frameless window when dragged, by the window system if supported.
import QtQuick
import configtools

MouseArea {
    id: root

    required property var cursor  // its cursorPos() returns the pointer's screen position
    property point start
    property bool moving: false
    property bool bySystem: false
    property point grip  // offset from the pointer to the window's corner
    readonly property var target: Window.window
    signal maximiseRequested

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
