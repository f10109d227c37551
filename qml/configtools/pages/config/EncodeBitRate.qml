// The bit rate of a stream in kbit/s: a choice of fixed rates, whose last entry is "custom" with a field for a number.
// It writes nothing. The owner sets `width`.
import QtQuick
import configtools

Row {
    id: root

    /// The setting "bitRate" of a stream of EncodeForm: a map with "choices" (texts), "index" (-1: unknown), "value"
    /// (kbit/s; not above 0: unknown) and "usable" (bool: can be set).
    required property var setting
    property string namePrefix  // of the object names: "main" or "sub"
    property string accessibleName
    property bool asked: false  // custom is chosen, the number is not entered yet
    readonly property bool custom: asked || (last >= 0 && setting.index === last)
    readonly property int last: setting.choices.length - 1  // index of the entry "custom"
    readonly property int largest: 100000  // kbit/s
    readonly property bool wrong: field.text !== "" && Number(field.text) < 1  // the number is 0
    signal chosen(string bitRate)  // another rate in kbit/s, as text

    /// Takes the typed number when the field is left. An empty, invalid or equal number restores the current one.
    function finish() {
        if (!custom || !visible)
            return;
        if (field.text === "" || wrong || Number(field.text) === setting.value) {
            field.text = setting.value > 0 ? setting.value : "";
            return;
        }
        asked = false;
        chosen(field.text);
    }

    spacing: Theme.unit
    onSettingChanged: {
        asked = false;
        field.text = setting.value > 0 ? setting.value : "";
    }

    OVChoice {
        width: root.custom ? root.width - field.width - root.spacing : root.width
        accessibleName: root.accessibleName
        chosen: root.custom ? root.last : root.setting.index
        enabled: root.setting.usable
        model: root.setting.choices
        objectName: root.namePrefix + "BitRateChoice"
        source: root.setting
        onIndexRequested: index => {
            root.asked = index === root.last;
            if (root.asked)
                field.forceActiveFocus(Qt.TabFocusReason);
            else
                root.chosen(root.setting.choices[index]);
        }
    }
    OVTextField {
        id: field
        width: Theme.rangeFieldWidth
        accessibleName: qsTr("自定义码流值")
        maximumLength: 6
        objectName: root.namePrefix + "BitRateField"
        textFont: Theme.figureFont
        validator: IntValidator { bottom: 1; top: root.largest }
        visible: root.custom
        onAccepted: root.finish()
        onActiveFocusChanged: if (!activeFocus) root.finish()
    }
}
