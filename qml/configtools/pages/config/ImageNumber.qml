// A typed number of an image setting. It is written on Enter or when the field loses the focus.
import QtQuick
import configtools

OVNumberField {
    id: root

    required property ImageGroup group
    required property string subKey
    property int least: 0  // smaller numbers are replaced by it
    property int current: group.number(subKey)
    property bool wrong: false  // inconsistent with related numbers: not written yet
    signal finished(int number)

    function follow() {
        text = current;
    }

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
    onFinished: number => group.change(subKey, number)
    Component.onCompleted: follow()

    Connections {
        target: root.group

        function onValuesChanged() {
            root.follow();
        }
    }
}
