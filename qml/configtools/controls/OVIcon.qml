// An icon of the icon font, by its name in Theme.icons. An unknown or empty name shows nothing.
import QtQuick
import configtools

Item {
    id: root

    required property string name
    property int size: Theme.iconSize  // height and width in pixels
    property color color: Theme.colours.sub

    implicitWidth: size
    implicitHeight: size

    Text {
        anchors.centerIn: parent
        color: root.color
        font.family: Theme.iconFamily
        font.pixelSize: root.size
        text: Theme.icons[root.name] ?? ""

        Accessible.ignored: true
    }
}
