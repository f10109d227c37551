// A switch, with its text on the right. The state is set from outside: a click or key only requests the other state.
import QtQuick
import configtools

OVAbstractButton {
    id: root

    property bool on: false  // not changed by the switch
    property string accessibleName
    signal toggleRequested(bool on)  // the requested state

    implicitWidth: track.width + (text === "" ? 0 : Theme.unit + word.implicitWidth)
    implicitHeight: Theme.controlHeight
    font: Theme.bodyFont

    Accessible.role: Accessible.CheckBox
    Accessible.name: accessibleName !== "" ? accessibleName : text
    Accessible.checkable: true
    Accessible.checked: on

    onClicked: toggleRequested(!on)

    contentItem: Item {
        Rectangle {
            id: track
            y: Math.round((root.height - height) / 2)
            width: Theme.switchWidth
            height: Theme.switchHeight
            color: !root.enabled ? (root.on ? Theme.colours.accentDisabled : Theme.colours.line)
                : root.on ? (root.down ? Theme.colours.accentPressed : root.hovered ? Theme.colours.accentHover
                                                                                    : Theme.colours.accent)
                : root.hovered ? Theme.colours.faint : Theme.colours.lineStrong
            radius: height / 2

            Rectangle {
                x: root.on ? parent.width - width - 2 : 2
                y: 2
                width: parent.height - 4
                height: width
                color: Theme.colours.surface
                radius: width / 2

                Behavior on x { NumberAnimation { duration: Theme.quick } }
            }
            OVFocusRing { around: parent.radius; shown: root.visualFocus }
        }
        OVLabel {
            id: word
            x: track.width + Theme.unit
            height: root.height
            width: parent.width - x
            color: root.enabled ? Theme.colours.text : Theme.colours.disabledText
            text: root.text
        }
    }
}
