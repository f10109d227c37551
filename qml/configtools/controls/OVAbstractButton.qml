// What all buttons share: a tool tip, which an OVActionRow shows for a disabled one too. Once pressed, a button
// keeps quiet until the pointer comes back: its tip would lie over the menu that it has opened.
import QtQuick
import QtQuick.Templates as T
import configtools
import "keygroups.js" as KeyGroups

T.AbstractButton {
    id: root

    property string toolTip
    property bool quiet: false
    property bool ownArrows: false  // it does something else with Left and Right than a group of controls does

    focusPolicy: Qt.StrongFocus
    hoverEnabled: true

    /// A key that is held down presses once.
    function pressOnce(event) {
        if (!event.isAutoRepeat)
            press();
    }

    function press() {
        if (checkable)
            toggle();
        clicked();
    }

    onHoveredChanged: quiet = false
    onPressedChanged: if (pressed) quiet = true

    // Space is the toolkit's own key.
    Keys.onEnterPressed: event => pressOnce(event)
    Keys.onReturnPressed: event => pressOnce(event)
    Keys.onTabPressed: event => event.accepted = KeyGroups.leave(root, true)
    Keys.onBacktabPressed: event => event.accepted = KeyGroups.leave(root, false)
    Keys.onLeftPressed: event => event.accepted = ownArrows || KeyGroups.stepPlainly(root, event, -1)
    Keys.onRightPressed: event => event.accepted = ownArrows || KeyGroups.stepPlainly(root, event, 1)

    Accessible.role: Accessible.Button
    Accessible.name: text !== "" ? text : toolTip
    Accessible.description: toolTip

    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }

    OVToolTip {
        shown: root.hovered && !root.quiet
        text: root.toolTip
    }
}
