// The ring around the control with the keyboard focus. It is a child of the control, or of its background, and drawn
// outside of it.
import QtQuick
import configtools

Rectangle {
    required property bool shown  // the control has the focus from the keyboard
    property int around: Theme.controlRadius  // corner radius of the control

    anchors.fill: parent
    anchors.margins: -Theme.focusRing
    border.color: Theme.colours.focusRing
    border.width: Theme.focusRing
    color: Theme.colours.clear
    radius: around + Theme.focusRing
    visible: shown
}
