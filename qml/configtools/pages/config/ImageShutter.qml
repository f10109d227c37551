// The shutter time: a choice of fixed times, whose last entry is "custom" with fields for a range in milliseconds. A
// change is written to the device immediately.
import QtQuick
import configtools

Column {
    id: root

    required property ImageGroup group  // the group "exposure"
    required property CameraForm form  // has the fixed times
    property bool asked: false  // custom is chosen, the range is not entered yet
    readonly property real shortest: group.number("dbExposureValue1")  // lower bound on the device, ms
    readonly property real longest: group.number("dbExposureValue2")  // upper bound on the device, ms
    readonly property int last: form.shutterTimes.length  // index of the entry "custom"
    /// Index of the fixed time on the device; -1 for a custom range.
    readonly property int index: form.shutterIndex(shortest, longest)
    readonly property bool custom: asked || index < 0
    /// The typed lower bound is greater than the upper one.
    readonly property bool wrong: lower.text !== "" && upper.text !== "" && Number(lower.text) > Number(upper.text)
    readonly property real longestKnown: 100000  // largest number of the fields, ms

    /// Shows the range on the device.
    function follow() {
        asked = false;
        // Devices store times as single-precision floats.
        lower.text = String(Number(shortest.toPrecision(6)));
        upper.text = String(Number(longest.toPrecision(6)));
    }

    /// Writes a range in ms.
    function write(lowest, highest) {
        group.work.set(group.key, form.shutterWrites(longest, lowest, highest));
    }

    /// Writes the typed range if it is valid and differs from the range on the device.
    function finish() {
        if (!custom || wrong || !lower.acceptableText || !upper.acceptableText)
            return;
        const lowest = Number(lower.text);
        const highest = Number(upper.text);
        if (Math.fround(lowest) !== Math.fround(shortest) || Math.fround(highest) !== Math.fround(longest))
            write(lowest, highest);
    }

    spacing: Theme.controlGap
    visible: group.supports("shutter")
    width: parent?.width ?? 0
    onLongestChanged: follow()
    onShortestChanged: follow()
    Component.onCompleted: follow()

    Connections {
        target: root.group

        function onValuesChanged() {
            root.follow();
        }
    }

    OVFormRow {
        width: parent.width
        label: qsTr("快门")
        labelWidth: Theme.imageLabelWidth

        OVChoice {
            width: parent.width
            accessibleName: qsTr("快门")
            chosen: root.custom ? root.last : root.index
            model: Array.from(root.form.shutterTimes).concat([qsTr("自定义范围")])
            objectName: "shutterChoice"
            source: root.group.values
            onIndexRequested: index => {
                root.asked = index === root.last;
                const time = root.form.shutterMilliseconds(index);
                if (!root.asked)
                    root.write(time, time);
            }
        }
    }
    OVFormRow {
        width: parent.width
        label: qsTr("快门范围(ms)")
        labelWidth: Theme.imageLabelWidth
        visible: root.custom

        Row {
            spacing: Theme.unit

            OVTextField {
                id: lower
                width: Theme.rangeFieldWidth
                accessibleName: qsTr("最短快门")
                objectName: "shutterLowerField"
                textFont: Theme.figureFont
                validator: DoubleValidator {
                    bottom: 0
                    locale: "C"
                    notation: DoubleValidator.StandardNotation
                    top: root.longestKnown
                }
                onAccepted: root.finish()
                onActiveFocusChanged: if (!activeFocus) root.finish()
            }
            OVLabel {
                height: Theme.controlHeight
                color: Theme.colours.sub
                text: "–"
            }
            OVTextField {
                id: upper
                width: Theme.rangeFieldWidth
                accessibleName: qsTr("最长快门")
                objectName: "shutterUpperField"
                textFont: Theme.figureFont
                validator: DoubleValidator {
                    bottom: 0
                    locale: "C"
                    notation: DoubleValidator.StandardNotation
                    top: root.longestKnown
                }
                onAccepted: root.finish()
                onActiveFocusChanged: if (!activeFocus) root.finish()
            }
            OVLabel {
                height: Theme.controlHeight
                color: Theme.colours.bad
                font: Theme.hintFont
                text: qsTr("下限不能大于上限")
                visible: root.wrong
            }
        }
    }
}
