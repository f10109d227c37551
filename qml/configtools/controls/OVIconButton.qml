// A button with only an icon. The tool tip is its accessible name.
import QtQuick
import configtools

OVAbstractButton {
    id: root

    required property string iconName  // see OVIcon
    property int iconSize: Theme.iconSize
    property bool turning: false  // the icon turns, for running work
    property color iconColor: Theme.colours.sub
    property color iconHoverColor: iconColor
    property color iconDisabledColor: Theme.colours.disabledText
    property color fill: Theme.colours.clear  // background
    property color fillHover: Theme.colours.hover
    property color fillPressed: Theme.colours.pressed

    implicitWidth: Theme.controlHeight
    implicitHeight: Theme.controlHeight

    contentItem: Item {
        OVIcon {
            id: sign
            anchors.centerIn: parent
            color: !root.enabled ? root.iconDisabledColor : root.hovered ? root.iconHoverColor : root.iconColor
            name: root.iconName
            size: root.iconSize

            OVTurning {
                running: root.turning
                target: sign
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
