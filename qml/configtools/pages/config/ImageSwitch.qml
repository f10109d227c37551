// A setting of a group of image settings that is on or off.
import QtQuick
import configtools

OVFormRow {
    id: root

    required property ImageGroup group
    required property string subKey
    property bool asNumber: false  // the device knows it as 0 and 1

    labelWidth: Theme.imageLabelWidth
    visible: group.offers(subKey)
    width: parent?.width ?? 0

    OVSwitch {
        accessibleName: root.group.title + " " + root.label
        objectName: root.group.key + "_" + root.subKey
        on: root.group.flag(root.subKey)
        onWanted: on => root.group.change(root.subKey, root.asNumber ? Number(on) : on)
    }
}
