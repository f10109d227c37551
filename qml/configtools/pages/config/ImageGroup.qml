// A group of image settings. It is hidden if the camera does not have it, and shows a note if its values could not be
// read. It is disabled while the device is being upgraded. Its child rows read values here and report changes to
// change(), which writes to the device immediately.
import QtQuick
import configtools

OVSection {
    id: root

    required property ImageWork work  // reads and writes the settings
    required property string key  // of the group in CameraForm.groups, such as "exposure"
    /// Values of the group by sub-key (key of a setting), and its properties: "support" (bool: the camera has the
    /// group, and it was read), "unread" (bool: the camera has it, but it was not read), "missing" (list of sub-keys
    /// that the camera does not have) and "ranges" (by sub-key, maps of "min" and "max"). Lists "all..." have texts of
    /// choices.
    readonly property var values: work.form.groups[key] ?? ({})

    /// The value of a setting; 0 if it is missing or not a number.
    function number(subKey) {
        return Number(values[subKey] ?? 0) || 0;
    }

    /// Whether a setting is on: true or 1.
    function flag(subKey) {
        return values[subKey] === true || values[subKey] === 1;
    }

    /// The list with this name, for example the texts of a choice; empty if it is missing.
    function list(name) {
        return values[name] ?? [];
    }

    /// Whether the camera has the setting. A setting that the group does not list as missing counts as supported.
    function supports(setting) {
        return !list("missing").includes(setting);
    }

    /// The minimum of a setting; 0 if its range is unknown.
    function least(subKey) {
        return values.ranges?.[subKey]?.min ?? 0;
    }

    /// The maximum of a setting; 100 if its range is unknown.
    function most(subKey) {
        return values.ranges?.[subKey]?.max ?? 100;
    }

    /// Writes a value of this group to the device, in the background.
    function change(subKey, value) {
        work.set(key, [[subKey, value]]);
    }

    enabled: !work.session.upgrading
    note: values.unread === true ? qsTr("没有读到这一组设置，不能修改。请刷新重试。") : ""
    objectName: "group_" + key
    visible: values.support === true || values.unread === true
    width: parent?.width ?? 0
}
