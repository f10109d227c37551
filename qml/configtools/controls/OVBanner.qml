// A line of notice across the window.
import QtQuick
import configtools

Rectangle {
    id: root

    required property string text

    implicitHeight: Theme.rowHeight
    color: Theme.colours.warnSoft

    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: Theme.line
        color: Theme.colours.warnLine
    }
    OVIcon {
        id: sign
        x: Theme.pageMargin
        anchors.verticalCenter: parent.verticalCenter
        color: Theme.colours.warn
        name: "unplugged"
        size: Theme.boxSize
    }
    OVLabel {
        anchors.left: sign.right
        anchors.leftMargin: Theme.unit
        anchors.right: parent.right
        anchors.rightMargin: Theme.pageMargin
        height: parent.height
        color: Theme.colours.warnInk
        objectName: "bannerText"
        text: root.text
    }
}
