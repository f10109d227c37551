// A field, its child, with a label above it, for dialogs without room for a label on the left.
import QtQuick
import configtools

Column {
    id: root

    required property string label
    default property alias field: slot.data

    spacing: Theme.half

    OVLabel {
        width: parent.width
        color: root.enabled ? Theme.colours.sub : Theme.colours.disabledText
        font: Theme.hintFont
        text: root.label
    }
    Item {
        id: slot
        width: parent.width
        height: childrenRect.height
    }
}
