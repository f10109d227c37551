// What all buttons share: a tool tip, which an OVActionRow shows for a disabled one too.
import QtQuick
import QtQuick.Templates as T
import configtools

T.AbstractButton {
    id: root

    property string toolTip

    focusPolicy: Qt.StrongFocus
    hoverEnabled: true

    function press() {
        if (checkable)
            toggle();
        clicked();
    }

    // Space is the toolkit's own key.
    Keys.onEnterPressed: press()
    Keys.onReturnPressed: press()

    Accessible.role: Accessible.Button
    Accessible.name: text !== "" ? text : toolTip
    Accessible.description: toolTip

    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }

    OVToolTip {
        shown: root.hovered && !root.pressed
        text: root.toolTip
    }
}
