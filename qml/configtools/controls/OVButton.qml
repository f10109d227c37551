// A button with text, and an icon on its left if it has an `iconName`. A text that is too long is elided.
import QtQuick
import configtools

OVAbstractButton {
    id: root

    /// Outlined: with a border. Primary: the main action, filled. Danger: in red. DangerPrimary: filled in red.
    enum Kind { Outlined, Primary, Danger, DangerPrimary }

    property int kind: OVButton.Outlined  // a Kind
    property bool opensMenu: false  // shows an arrow; the owner opens the menu on clicked()
    property bool busy: false  // a spinner replaces the icon; the owner disables the button
    property string iconName  // see OVIcon; "" for none

    readonly property bool filled: kind === OVButton.Primary || kind === OVButton.DangerPrimary
    readonly property color fill: {
        const c = Theme.colours;
        if (!enabled)
            return kind === OVButton.DangerPrimary ? c.badDisabled : filled ? c.accentDisabled : c.surface;
        if (kind === OVButton.Primary)
            return down ? c.accentPressed : hovered ? c.accentHover : c.accent;
        if (kind === OVButton.DangerPrimary)
            return down ? c.badPressed : hovered ? c.badHover : c.bad;
        if (kind === OVButton.Danger)
            return down || hovered ? c.badSoft : c.surface;
        return down ? c.pressed : hovered ? c.hover : c.surface;
    }
    readonly property color textColor: {
        const c = Theme.colours;
        if (filled)
            return c.accentText;
        if (!enabled)
            return c.disabledText;
        return kind === OVButton.Danger ? c.bad : c.text;
    }

    // Width of the icons with their gaps, in pixels.
    readonly property int signsWidth: (iconName !== "" || busy ? Theme.boxSize + 6 : 0)
                                      + (opensMenu ? Theme.smallIconSize + 6 : 0)

    implicitWidth: label.implicitWidth + signsWidth + leftPadding + rightPadding
    implicitHeight: Theme.controlHeight
    leftPadding: 12
    rightPadding: opensMenu ? Theme.unit : 12

    contentItem: Item {
        Row {
            anchors.centerIn: parent
            spacing: 6

            OVSpinner {
                anchors.verticalCenter: parent.verticalCenter
                color: root.textColor
                running: root.busy
                size: Theme.boxSize
                visible: root.busy
            }
            OVIcon {
                anchors.verticalCenter: parent.verticalCenter
                color: root.textColor
                name: root.iconName
                size: Theme.boxSize
                visible: root.iconName !== "" && !root.busy
            }
            OVLabel {
                id: label
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, root.availableWidth - root.signsWidth)
                color: root.textColor
                font: Theme.buttonFont
                text: root.text
            }
            OVIcon {
                anchors.verticalCenter: parent.verticalCenter
                color: root.enabled ? Theme.colours.sub : Theme.colours.disabledText
                name: "down"
                size: Theme.smallIconSize
                visible: root.opensMenu
            }
        }
    }

    background: Rectangle {
        border.color: !root.enabled || root.filled ? Theme.colours.line
            : root.kind === OVButton.Danger ? (root.hovered ? Theme.colours.badLine : Theme.colours.line)
            : root.visualFocus ? Theme.colours.accent
            : root.hovered ? Theme.colours.lineStrong : Theme.colours.line
        border.width: root.filled ? 0 : Theme.line
        color: root.fill
        radius: Theme.controlRadius

        Behavior on color { ColorAnimation { duration: Theme.quick } }

        OVFocusRing { shown: root.visualFocus }
    }
}
