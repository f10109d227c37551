// Base of all buttons. Emits clicked() for a click, the space key, Return and Enter. It has a tool tip; the tip of a
// disabled button is shown only in an OVActionRow. After a press the tip stays hidden until the pointer enters again,
// as it would cover an opened menu. In a key group (an ancestor with `keyGroup: true`), Left and Right move the
// keyboard focus to the other buttons of the group, and Tab leaves the group.
import QtQuick
import QtQuick.Templates as T
import configtools
import "keygroups.js" as KeyGroups

T.AbstractButton {
    id: root

    property string toolTip  // "" for none
    property bool quiet: false  // pressed since the pointer has entered: the tip stays hidden
    property bool ownArrows: false  // Left and Right do not move the focus: the user of the button handles them

    focusPolicy: Qt.StrongFocus
    hoverEnabled: true

    /// press() for a key event; ignores the auto-repeat of the key.
    function pressOnce(event) {
        if (!event.isAutoRepeat)
            press();
    }

    /// Acts like a click, also if the button is disabled: toggles a checkable button, then emits clicked(), but not
    /// toggled().
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
