// An invisible sheet over its parent that keeps the user's input from it while work runs there. Everything else of the
// window stays usable. The keyboard goes back to where it was, unless the user has taken it elsewhere.
import QtQuick

MouseArea {
    id: root

    property bool active: false
    property var back: null  // the item that had the keyboard

    function isCovered(item) {
        let above = item;
        while (above && above !== parent)
            above = above.parent;
        return above !== null && item !== root;
    }

    function takeKeyboard() {
        const item = Window.activeFocusItem;
        if (!active || !visible || !isCovered(item))
            return;
        back = item;
        forceActiveFocus();
    }

    function giveBack() {
        if (activeFocus && back !== null)
            back.forceActiveFocus(back.focusReason ?? Qt.OtherFocusReason);
        back = null;
    }

    anchors.fill: parent
    cursorShape: Qt.BusyCursor
    hoverEnabled: true
    objectName: "workHold"
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
    // A list that closes gives the keyboard back to what it belongs to.
    Connections {
        enabled: root.active
        target: root.Window.window

        function onActiveFocusItemChanged() {
            later.start();
        }
    }
}
