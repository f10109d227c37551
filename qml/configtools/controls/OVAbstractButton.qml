// Base of all buttons. It has a tool tip; OVActionRow shows the tip of a disabled button. The tip stays hidden after a
// press until the pointer enters again, as it would cover an opened menu.
import QtQuick
import QtQuick.Templates as T
import configtools
import "keygroups.js" as KeyGroups

T.AbstractButton {
    id: root

    property string toolTip
    property bool quiet: false  // pressed since the pointer has entered: the tip stays hidden
    property bool ownArrows: false  // the button handles Left and Right itself, see keygroups.js

    focusPolicy: Qt.StrongFocus
    hoverEnabled: true

    /// Ignores the auto-repeat of a key.
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

    // Qt handles the space key.
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
