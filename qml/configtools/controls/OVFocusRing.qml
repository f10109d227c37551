// The ring around the control with the keyboard focus.
import QtQuick
import configtools

Rectangle {
    required property bool shown
    property int around: Theme.controlRadius  // corner radius of the control

    anchors.fill: parent
    anchors.margins: -Theme.focusRing
    border.color: Theme.colours.focusRing
    border.width: Theme.focusRing
    color: Theme.colours.clear
    radius: around + Theme.focusRing
    visible: shown
}
