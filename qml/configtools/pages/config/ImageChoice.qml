// A setting of a group of image settings that is one of several. The device counts them from `first`.
import QtQuick
import configtools

OVFormRow {
    id: root

    required property ImageGroup group
    required property string subKey
    required property var choices
    property int first: 0
    property var numbers: []  // what the choices stand for, where they are no run of numbers

    labelWidth: Theme.imageLabelWidth
    visible: group.offers(subKey)
    width: parent?.width ?? 0

    OVChoice {
        width: parent.width
        accessibleName: root.group.title + " " + root.label
        chosen: {
            const number = root.group.number(root.subKey);
            const place = root.numbers.length > 0 ? root.numbers.indexOf(number) : number - root.first;
            return place >= 0 && place < root.choices.length ? place : -1;
        }
        enabled: root.choices.length > 0
        model: root.choices
        objectName: root.group.key + "_" + root.subKey
        source: root.group.values
        onPicked: index => root.group.change(root.subKey, root.numbers.length > 0 ? root.numbers[index]
                                                                                  : index + root.first)
    }
}
