// A slider for integers, with its number. The user's number is reported by committed(): when the mouse releases the
// slider, or Theme.sliderRest after the last key. The owner then sets `value`; to refuse the number it replaces
// `source`. Until then the slider keeps showing the number.
import QtQuick
import QtQuick.Templates as T
import configtools

Item {
    id: root

    property int from: 0
    property int to: 100  // the slider is disabled if it is not above `from`
    property int value: 0  // not changed by the slider; outside the range, the handle is at the nearer end
    property string accessibleName
    property bool unknown: false  // no handle, and a dash instead of the number; the slider can still be operated
    /// The object from which the owner reads `value`, such as a map of values. When it is replaced, the slider shows
    /// `value` again, also if that is the same number; the slider does not use its content.
    property var source: null
    /// False while the user moves the slider: it then ignores a change of `value`.
    readonly property bool rested: !slider.pressed && !rest.running
    readonly property int bounded: Math.max(from, Math.min(to, value))  // position of the handle for `value`
    signal committed(int value)  // with a number other than `bounded`; while `unknown`, other than `value`

    /// Shows `value`, unless the user moves the slider.
    function follow() {
        if (rested)
            slider.value = value;
    }

    /// Reports the number at the handle, see committed().
    function commit() {
        rest.stop();
        const chosen = Math.round(slider.value);
        if (chosen !== (unknown ? value : bounded))
            committed(chosen);
    }

    implicitWidth: 180
    implicitHeight: Theme.controlHeight

    onSourceChanged: follow()
    onValueChanged: follow()
    Component.onCompleted: follow()

    T.Slider {
        id: slider

        width: root.width - number.width - Theme.unit
        height: root.height
        enabled: root.enabled && root.to > root.from
        focusPolicy: Qt.StrongFocus
        from: root.from
        hoverEnabled: true
        snapMode: T.Slider.SnapAlways
        stepSize: 1
        to: Math.max(root.from + 1, root.to)
        wheelEnabled: false  // scrolling a page must not change the value under the pointer

        Accessible.name: root.accessibleName

        onFromChanged: root.follow()
        onToChanged: root.follow()
        onMoved: if (!pressed) rest.restart()
        onPressedChanged: if (!pressed) root.commit()
        Keys.onPressed: event => {
            const page = Math.max(1, Math.round((to - from) / 10));
            const steps = {
                [Qt.Key_PageUp]: page, [Qt.Key_PageDown]: -page, [Qt.Key_Home]: from - to, [Qt.Key_End]: to - from
            };
            event.accepted = steps[event.key] !== undefined;
            if (event.accepted) {
                value = Math.max(from, Math.min(to, value + steps[event.key]));
                rest.restart();
            }
        }

        background: Rectangle {
            y: Math.round((slider.height - height) / 2)
            width: slider.width
            height: Theme.sliderGroove
            color: slider.enabled ? Theme.colours.line : Theme.colours.disabledFill
            radius: height / 2

            Rectangle {
                width: root.unknown ? 0 : slider.visualPosition * (slider.width - slider.handle.width)
                    + slider.handle.width / 2
                height: parent.height
                color: slider.enabled ? Theme.colours.accent : Theme.colours.lineStrong
                radius: height / 2
            }
        }

        handle: Rectangle {
            x: slider.visualPosition * (slider.width - width)
            y: Math.round((slider.height - height) / 2)
            width: Theme.sliderHandle
            height: Theme.sliderHandle
            border.color: !slider.enabled ? Theme.colours.lineStrong
                : slider.pressed ? Theme.colours.accentPressed : Theme.colours.accent
            border.width: 2
            color: slider.enabled && (slider.hovered || slider.pressed) ? Theme.colours.accentSoft
                : Theme.colours.surface
            radius: width / 2
            visible: !root.unknown

            OVFocusRing { around: parent.radius; shown: slider.visualFocus }
        }
    }
    OVLabel {
        id: number
        anchors.right: parent.right
        width: Theme.sliderNumberWidth
        height: root.height
        color: root.enabled ? Theme.colours.text : Theme.colours.disabledText
        font: Theme.figureFont
        horizontalAlignment: Text.AlignRight
        objectName: "sliderNumber"
        text: root.unknown ? "—" : Math.round(slider.value) === root.bounded ? root.value : Math.round(slider.value)
    }

    Timer {
        id: rest
        interval: Theme.sliderRest
        onTriggered: root.commit()
    }
}
