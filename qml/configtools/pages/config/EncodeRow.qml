// A row of an encode setting: label, a mark for an unsaved change, and the control that is its child.
import QtQuick
import configtools

Item {
    id: root

    required property string label
    property bool changed: false  // the value differs from that of the device: the mark is shown
    default property alias field: slot.data

    width: parent?.width ?? 0
    height: Theme.controlHeight

    Rectangle {
        x: -width - Theme.half
        anchors.verticalCenter: parent.verticalCenter
        width: Theme.changeMark
        height: width
        color: Theme.colours.warn
        objectName: "changeMark"
        radius: width / 2
        visible: root.changed
    }
    OVLabel {
        width: Theme.encodeLabelWidth
        height: parent.height
        color: root.changed ? Theme.colours.warnText : Theme.colours.sub
        text: root.label
    }
    Item {
        id: slot
        x: Theme.encodeLabelWidth + Theme.unit
        width: root.width - x
        height: parent.height
    }
}
