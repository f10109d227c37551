// Settings of a camera that belong together. A group that the camera does not have is hidden. Its rows take their
// values from here, and tell it what the user sets.
import QtQuick
import configtools

OVSection {
    id: root

    required property ImageWork work
    required property string key
    readonly property var values: work.form.groups[key] ?? ({})

    function number(subKey) {
        return Number(values[subKey] ?? 0) || 0;
    }

    function flag(subKey) {
        return values[subKey] === true || values[subKey] === 1;
    }

    function list(name) {
        return values[name] ?? [];
    }

    function least(subKey) {
        return values.ranges?.[subKey]?.min ?? 0;
    }

    function most(subKey) {
        return values.ranges?.[subKey]?.max ?? 100;
    }

    function change(subKey, value) {
        work.set(key, [[subKey, value]]);
    }

    objectName: "group_" + key
    visible: values.support === true
    width: parent?.width ?? 0
}
