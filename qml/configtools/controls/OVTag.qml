// A word in a small frame, such as "new" at the name of a device.
import QtQuick
import configtools

Rectangle {
    id: root

    required property string text

    implicitWidth: label.implicitWidth + Theme.unit
    implicitHeight: label.implicitHeight + Theme.line
    border.color: Theme.colours.accent
    border.width: Theme.line
    color: Theme.colours.accentSoft
    radius: Theme.smallRadius

    OVLabel {
        id: label
        anchors.centerIn: parent
        color: Theme.colours.accent
        font: Theme.hintFont
        showsFullTextOnHover: false
        text: root.text
    }
}
