// The logo: the first character of `name` on a coloured square.
import QtQuick
import configtools

Rectangle {
    id: root

    required property string name  // of the application
    property bool large: false  // for the about box; otherwise for a title bar

    implicitWidth: large ? Theme.largeLogoSize : Theme.logoSize
    implicitHeight: implicitWidth
    radius: large ? Theme.paneRadius : Theme.controlRadius
    gradient: Gradient {
        GradientStop { position: 0; color: Theme.colours.logoTop }
        GradientStop { position: 1; color: Theme.colours.logoBottom }
    }

    OVLabel {
        anchors.fill: parent
        color: Theme.colours.barText
        font: root.large ? Theme.leadFont : Theme.headFont
        horizontalAlignment: Text.AlignHCenter
        text: root.name.charAt(0)
        Accessible.ignored: true
    }
}
