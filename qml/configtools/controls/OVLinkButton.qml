// A button that looks like a link: coloured text without a border, for a line of text or a table row. It emits
// clicked().
import QtQuick
import configtools

OVAbstractButton {
    id: root

    property color textColor: Theme.colours.accent

    implicitWidth: label.implicitWidth
    implicitHeight: Theme.unit * 3

    contentItem: OVLabel {
        id: label
        color: !root.enabled ? Theme.colours.disabledText
            : root.down ? Theme.colours.accentPressed : root.hovered ? Theme.colours.accentHover : root.textColor
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
