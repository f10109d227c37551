// An image setting that is on or off.
import QtQuick
import configtools

OVFormRow {
    id: root

    required property ImageGroup group
    required property string subKey
    property bool asNumber: false  // the device uses 0 and 1

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
