// A number of a group of image settings that is typed: it is written when it is done.
import QtQuick
import configtools

OVNumberField {
    id: root

    required property ImageGroup group
    required property string subKey
    property int least: 0
    property int current: group.number(subKey)
    property bool wrong: false  // it does not go with the numbers beside it, and waits for them
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
