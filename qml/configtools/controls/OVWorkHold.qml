// An invisible sheet over its parent that keeps the user's input from it while work runs there. Everything else of the
// window stays usable. The keyboard goes back to where it was, unless the user has taken it elsewhere.
import QtQuick

MouseArea {
    id: root

    property bool active: false
    property Item back: null  // what had the keyboard
    readonly property Item focused: Window.activeFocusItem

    function isCovered(item) {
        let above = item;
        while (above && above !== parent)
            above = above.parent;
        return above !== null && item !== root;
    }

    function takeKeyboard() {
        if (!active || !isCovered(focused))
            return;
        back = focused;
        forceActiveFocus();
    }

    anchors.fill: parent
    cursorShape: Qt.BusyCursor
    hoverEnabled: true
    objectName: "workHold"
    visible: active
    z: 1
    onActiveChanged: {
        if (active)
            takeKeyboard();
        else if (activeFocus && back !== null)
            back.forceActiveFocus(back.focusReason ?? Qt.OtherFocusReason);
        if (!active)
            back = null;
    }
    onFocusedChanged: takeKeyboard()
    onWheel: wheel => wheel.accepted = true
    Keys.onPressed: event => event.accepted = true
}
