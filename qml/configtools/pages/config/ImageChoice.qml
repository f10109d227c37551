// A row of an image setting with several values. The choice with index 0 has the number `first` on the device, unless
// `numbers` is given. For another number the row shows a dash. It is hidden if the device lacks the setting.
import QtQuick
import configtools

OVFormRow {
    id: root

    required property ImageGroup group  // reads and writes the value
    required property string subKey  // key of the setting in the group
    required property var choices  // texts of the choices
    property int first: 0  // number of the first choice on the device
    property var numbers: []  // number of each choice, if the numbers are not consecutive; replaces `first`

    labelWidth: Theme.imageLabelWidth
    visible: group.supports(subKey)
    width: parent?.width ?? 0

    OVChoice {
        width: parent.width
        accessibleName: root.group.title + " " + root.label
        chosen: {
            const number = root.group.number(root.subKey);
            const index = root.numbers.length > 0 ? root.numbers.indexOf(number) : number - root.first;
            return index >= 0 && index < root.choices.length ? index : -1;
        }
        enabled: root.choices.length > 0
        model: root.choices
        objectName: root.group.key + "_" + root.subKey
        source: root.group.values
        onIndexRequested: index => root.group.change(root.subKey, root.numbers.length > 0 ? root.numbers[index]
                                                                                  : index + root.first)
    }
}
