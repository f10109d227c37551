// A row of an image setting that is on or off. A change is written to the device immediately. The row is hidden if the
// camera does not have the setting.
import QtQuick
import configtools

OVFormRow {
    id: root

    required property ImageGroup group  // reads and writes the value
    required property string subKey  // key of the setting in the group
    property bool asNumber: false  // the setting is the number 0 or 1 instead of a bool

    labelWidth: Theme.imageLabelWidth
    visible: group.supports(subKey)
    width: parent?.width ?? 0

    OVSwitch {
        accessibleName: root.group.title + " " + root.label
        objectName: root.group.key + "_" + root.subKey
        on: root.group.flag(root.subKey)
        onToggleRequested: on => root.group.change(root.subKey, root.asNumber ? Number(on) : on)
    }
}
