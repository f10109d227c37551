// A label on the left of its field, which is its child. The label is centred on the first line of the field.
import QtQuick
import configtools

Item {
    id: root

    required property string label
    property int labelWidth: Theme.formLabelWidth  // in pixels; the field has the rest of the row
    default property alias field: slot.data

    implicitHeight: Math.max(Theme.controlHeight, slot.height)

    OVLabel {
        width: root.labelWidth
        height: Theme.controlHeight
        color: root.enabled ? Theme.colours.sub : Theme.colours.disabledText
        text: root.label
    }
    Item {
        id: slot
        x: root.labelWidth + Theme.unit
        width: root.width - x
        height: childrenRect.height
    }
}
