// A row of an image setting with a slider. The value is written to the device when the slider is released, or shortly
// after the last step by a key. The row is hidden if the camera does not have the setting.
import QtQuick
import configtools

OVFormRow {
    id: root

    required property ImageGroup group  // reads and writes the value
    required property string subKey  // key of the setting in the group
    property int least: group.least(subKey)  // of the slider
    property int most: group.most(subKey)  // of the slider

    labelWidth: Theme.imageLabelWidth
    visible: group.supports(subKey)
    width: parent?.width ?? 0

    OVSlider {
        width: parent.width
        accessibleName: root.group.title + " " + root.label
        from: root.least
        objectName: root.group.key + "_" + root.subKey
        source: root.group.values
        to: root.most
        value: root.group.number(root.subKey)
        onCommitted: value => root.group.change(root.subKey, value)
    }
}
