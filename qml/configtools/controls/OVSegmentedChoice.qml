// A choice of few, side by side. Options are objects with "text" and "objectName", and if wanted "enabled" and "toolTip".
import QtQuick
import configtools

Rectangle {
    id: root

    required property var options
    required property int currentIndex
    signal activated(int index)

    implicitWidth: segments.implicitWidth + 2 * Theme.line
    implicitHeight: Theme.controlHeight
    border.color: Theme.colours.line
    border.width: Theme.line
    color: Theme.colours.surface
    radius: Theme.controlRadius

    Accessible.role: Accessible.Grouping

    Row {
        id: segments
        x: Theme.line
        y: Theme.line

        // qmllint disable unqualified
        Repeater {
            model: root.options

            OVAbstractButton {
                id: segment

                required property int index
                required property var modelData
                readonly property bool chosen: index === root.currentIndex

                implicitWidth: label.implicitWidth + 24
                implicitHeight: root.height - 2 * Theme.line
                checkable: false
                ownArrows: true
                checked: chosen
                enabled: modelData.enabled ?? true
                objectName: modelData.objectName
                text: modelData.text
                toolTip: modelData.toolTip ?? ""

                Accessible.role: Accessible.RadioButton
                Accessible.checked: chosen

                onClicked: root.activated(index)
                Keys.onLeftPressed: root.activated(Math.max(0, root.currentIndex - 1))
                Keys.onRightPressed: root.activated(Math.min(root.options.length - 1, root.currentIndex + 1))

                contentItem: OVLabel {
                    id: label
                    color: !segment.enabled ? Theme.colours.disabledInk
                        : segment.chosen ? Theme.colours.accent : Theme.colours.sub
                    font: Theme.buttonFont
                    horizontalAlignment: Text.AlignHCenter
                    text: segment.text
                }

                background: Rectangle {
                    color: segment.chosen ? Theme.colours.accentSoft
                        : segment.hovered ? Theme.colours.hover : Theme.colours.surface
                    radius: Theme.controlRadius - Theme.line

                    OVFocusRing { shown: segment.visualFocus }
                }
            }
        }
        // qmllint enable unqualified
    }
}
