// A field for an integer of an image setting. A changed number is reported on Enter or when the field loses the focus,
// and written to the device as the value of `subKey`.
import QtQuick
import configtools

OVNumberField {
    id: root

    required property ImageGroup group  // reads and writes the value
    required property string subKey  // key of the setting in the group; "": the owner writes the number
    property int least: 0  // smaller numbers are replaced by it
    property int current: group.number(subKey)  // number on the device, as last read
    /// The number is inconsistent with related numbers: it stays in the field and is not reported.
    property bool wrong: false
    signal finished(int number)  // the typed number is valid and differs from `current`

    /// Shows the number on the device.
    function follow() {
        text = current;
    }

    /// Takes the typed number; shows the number on the device if it is empty or equal.
    function finish() {
        if (acceptable && wrong)
            return;
        const number = Math.max(least, Number(text));
        if (acceptable && number !== current)
            finished(number);
        else
            follow();
    }

    objectName: group.key + "_" + subKey
    width: Theme.rangeFieldWidth
    onAccepted: finish()
    onActiveFocusChanged: if (!activeFocus) finish()
    onCurrentChanged: follow()
    onFinished: number => {
        if (subKey !== "")
            group.change(subKey, number);
    }
    Component.onCompleted: follow()

    Connections {
        target: root.group

        function onValuesChanged() {
            root.follow();
        }
    }
}
