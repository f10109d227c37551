// A label and its field, the label on the middle of the field's first line.
import QtQuick
import configtools

Item {
    id: root

    required property string label
    property int labelWidth: Theme.formLabelWidth
    default property alias field: slot.data

    implicitHeight: Math.max(Theme.controlHeight, slot.height)

    OVLabel {
        width: root.labelWidth
        height: Theme.controlHeight
        color: root.enabled ? Theme.colours.sub : Theme.colours.disabledInk
        text: root.label
    }
    Item {
        id: slot
        x: root.labelWidth + Theme.unit
        width: root.width - x
        height: childrenRect.height
    }
}
