// An image setting with a slider.
import QtQuick
import configtools

OVFormRow {
    id: root

    required property ImageGroup group
    required property string subKey
    property int least: group.least(subKey)
    property int most: group.most(subKey)

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
