// Blocks mouse and keyboard input to its parent item while `active`. The rest of the window stays usable. If the parent
// had the keyboard focus, the blocker takes it, and returns it to the same item at the end, unless the user has moved
// it.
import QtQuick

MouseArea {
    id: root

    property bool active: false  // set by the owner while work runs in the parent
    property var back: null  // item in the parent that had the keyboard focus, null for none

    /// Whether the item is the parent or inside it.
    function isCovered(item) {
        let above = item;
        while (above && above !== parent)
            above = above.parent;
        return above !== null && item !== root;
    }

    /// Takes the keyboard focus if it is in the parent.
    function takeKeyboard() {
        const item = Window.activeFocusItem;
        if (!active || !visible || !isCovered(item))
            return;
        back = item;
        forceActiveFocus();
    }

    /// Returns the keyboard focus, if it was taken and is still here.
    function giveBack() {
        if (activeFocus && back !== null)
            back.forceActiveFocus(back.focusReason ?? Qt.OtherFocusReason);
        back = null;
    }

    anchors.fill: parent
    cursorShape: Qt.BusyCursor
    hoverEnabled: true
    objectName: "panelBlocker"
    visible: false
    z: 1
    onActiveChanged: {
        if (!active)
            giveBack();
        visible = active;
        takeKeyboard();
    }
    onWheel: wheel => wheel.accepted = true
    Keys.onPressed: event => event.accepted = true

    Timer {
        id: later
        interval: 0
        onTriggered: root.takeKeyboard()
    }
    // A closing popup returns the keyboard focus to its owner.
    Connections {
        enabled: root.active
        target: root.Window.window

        function onActiveFocusItemChanged() {
            later.start();
        }
    }
}
