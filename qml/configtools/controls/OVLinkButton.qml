// An action inside a line of text or a table row.
import QtQuick
import configtools

OVAbstractButton {
    id: root

    property color ink: Theme.colours.accent

    implicitWidth: label.implicitWidth
    implicitHeight: Theme.unit * 3

    contentItem: OVLabel {
        id: label
        color: !root.enabled ? Theme.colours.disabledInk
            : root.down ? Theme.colours.accentPressed : root.hovered ? Theme.colours.accentHover : root.ink
        font: Theme.bodyFont
        text: root.text
    }

    background: Item {
        Rectangle {
            anchors.bottom: parent.bottom
            anchors.bottomMargin: 3
            width: parent.width
            height: Theme.line
            color: label.color
            visible: root.hovered
        }
        OVFocusRing { shown: root.visualFocus; around: 2 }
    }
}
