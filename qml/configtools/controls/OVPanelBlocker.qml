// Blocks input to its parent while work runs there. The rest of the window stays usable. Afterwards the keyboard focus
// returns to its earlier item, unless the user has moved it.
import QtQuick

MouseArea {
    id: root

    property bool active: false
    property var back: null  // item that had the keyboard focus

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
