// A labelled field for dialogs that are too small for labels beside their fields: the label stands above.
import QtQuick
import configtools

Column {
    id: root

    required property string label
    default property alias field: slot.data

    spacing: Theme.half

    OVLabel {
        width: parent.width
        color: root.enabled ? Theme.colours.sub : Theme.colours.disabledInk
        font: Theme.hintFont
        text: root.label
    }
    Item {
        id: slot
        width: parent.width
        height: childrenRect.height
    }
}
