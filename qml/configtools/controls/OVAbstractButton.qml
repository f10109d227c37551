// What all buttons share: a tool tip, which an OVActionRow shows for a disabled one too. Once pressed, a button
// keeps quiet until the pointer comes back: its tip would lie over the menu that it has opened.
import QtQuick
import QtQuick.Templates as T
import configtools

T.AbstractButton {
    id: root

    property string toolTip
    property bool quiet: false

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
