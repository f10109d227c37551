// Wrapped plain text with an icon before its first line. The owner sets the width.
import QtQuick
import configtools

Row {
    id: root

    required property string iconName  // see OVIcon
    required property string text
    property color iconColor: Theme.colours.accent
    property string messageName: "messageText"  // object name of the text, for tests

    spacing: Theme.controlGap

    OVIcon {
        id: sign
        y: Math.round((messageLabel.lineHeight - height) / 2)
        color: root.iconColor
        name: root.iconName
    }
    OVParagraph {
        id: messageLabel
        width: root.width - sign.width - root.spacing
        objectName: root.messageName
        text: root.text
    }
}
