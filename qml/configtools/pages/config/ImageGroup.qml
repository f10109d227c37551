// A group of image settings. It is hidden if the camera does not have it, and shows a note if its values could not be
// read. The rows read values and report changes here.
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

    /// Whether the camera supports the setting.
    function supports(setting) {
        return !list("missing").includes(setting);
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

    enabled: !work.session.upgrading
    note: values.unread === true ? qsTr("没有读到这一组设置，不能修改。请刷新重试。") : ""
    objectName: "group_" + key
    visible: values.support === true || values.unread === true
    width: parent?.width ?? 0
}
