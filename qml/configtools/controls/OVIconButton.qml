// A button with a sign only: 18 in a hit area of 32. Its tool tip is its name.
import QtQuick
import configtools

OVAbstractButton {
    id: root

    required property string iconName
    property int iconSize: Theme.iconSize
    property bool turning: false
    property color ink: Theme.colours.sub
    property color inkHover: ink
    property color inkDisabled: Theme.colours.disabledInk
    property color fill: Theme.colours.clear
    property color fillHover: Theme.colours.hover
    property color fillPressed: Theme.colours.pressed

    implicitWidth: Theme.controlHeight
    implicitHeight: Theme.controlHeight

    contentItem: Item {
        OVIcon {
            id: sign
            anchors.centerIn: parent
            color: !root.enabled ? root.inkDisabled : root.hovered ? root.inkHover : root.ink
            name: root.iconName
            size: root.iconSize

            RotationAnimator on rotation {
                id: turn
                duration: Theme.turn
                from: 0
                to: 360
                loops: Animation.Infinite
                running: root.turning
                onStopped: sign.rotation = 0
            }
        }
    }

    background: Rectangle {
        color: root.down ? root.fillPressed : root.hovered || root.visualFocus ? root.fillHover : root.fill
        radius: Theme.controlRadius

        Behavior on color { ColorAnimation { duration: Theme.quick } }

        OVFocusRing { shown: root.visualFocus }
    }
}
