// A check box, with or without text. A click changes its state, unless the owner sets `nextCheckState`. With `tristate`
// it can also show a partial selection; the owner then sets `nextCheckState`, otherwise a click also sets the partial one.
// In a key group (keygroups.js), Left and Right move to the neighbouring
// controls, and Tab leaves the group.
import QtQuick
import QtQuick.Templates as T
import configtools
import "keygroups.js" as KeyGroups

T.CheckBox {
    id: root

    property string toolTip  // "" for none; the accessible name of a box without text

    implicitWidth: text === "" ? Theme.boxSize : implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Theme.controlHeight
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    leftPadding: text === "" ? 0 : Theme.boxSize + spacing
    spacing: Theme.unit

    Keys.onTabPressed: event => event.accepted = KeyGroups.leave(root, true)
    Keys.onBacktabPressed: event => event.accepted = KeyGroups.leave(root, false)
    Keys.onLeftPressed: event => event.accepted = KeyGroups.step(root, -1)
    Keys.onRightPressed: event => event.accepted = KeyGroups.step(root, 1)

    Accessible.name: text !== "" ? text : toolTip
    Accessible.description: toolTip

    indicator: Rectangle {
        readonly property bool filled: root.checkState !== Qt.Unchecked

        y: Math.round((root.height - height) / 2)
        width: Theme.boxSize
        height: Theme.boxSize
        border.color: root.visualFocus ? Theme.colours.accent
            : root.hovered && root.enabled ? Theme.colours.accent : Theme.colours.lineStrong
        border.width: filled ? 0 : Theme.line
        color: !root.enabled ? (filled ? Theme.colours.accentDisabled : Theme.colours.disabledFill)
            : filled ? (root.down ? Theme.colours.accentPressed : root.hovered ? Theme.colours.accentHover
                                                                               : Theme.colours.accent)
            : root.down ? Theme.colours.accentSoft : Theme.colours.surface
        radius: Theme.smallRadius

        OVIcon {
            anchors.centerIn: parent
            color: Theme.colours.accentText
            name: root.checkState === Qt.PartiallyChecked ? "mixed" : "check"
            size: Theme.boxSize
            visible: parent.filled
        }

        OVFocusRing { shown: root.visualFocus; around: Theme.smallRadius }
    }

    contentItem: OVLabel {
        color: root.enabled ? Theme.colours.text : Theme.colours.disabledText
        text: root.text
        visible: root.text !== ""
    }

    OVToolTip {
        shown: root.hovered
        text: root.toolTip
    }
}
