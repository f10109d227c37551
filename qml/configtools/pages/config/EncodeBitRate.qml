// The bit rate of a stream in kbit/s: a step, or a custom number with the last entry.
import QtQuick
import configtools

Row {
    id: root

    required property var setting  // map of EncodeForm: "choices", "index", "value" (kbit/s) and "usable"
    property string namePrefix
    property string accessibleName
    property bool asked: false  // custom is chosen, the number is not entered yet
    readonly property bool custom: asked || (last >= 0 && setting.index === last)
    readonly property int last: setting.choices.length - 1
    readonly property int largest: 100000
    readonly property bool wrong: field.text !== "" && Number(field.text) < 1
    signal chosen(string bitRate)  // kbit/s

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
