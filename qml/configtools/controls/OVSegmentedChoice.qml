// A choice of a few options in a row. It is one stop of the Tab key: Left and Right choose the next enabled option. A
// choice of the user is only requested by activated(): the owner sets `currentIndex`.
import QtQuick
import configtools
import "keygroups.js" as KeyGroups

Rectangle {
    id: root

    /// Array of objects with "text", "objectName" and optionally "enabled" (true by default) and "toolTip". Another
    /// array creates the segments again, which takes the keyboard focus from them.
    required property var options
    required property int currentIndex  // from 0; set by the owner. -1: no option is current, and no Tab stop
    property real room: Infinity  // maximum width in pixels: the segments get narrower, then elide their texts
    signal activated(int index)  // also for the current option

    readonly property real textsWidth: options.reduce((sum, option) => sum + Math.ceil(metrics.advanceWidth(option.text)), 0)
    readonly property real gaps: room - textsWidth - 2 * Theme.line  // room left and right of the texts
    readonly property int padding: Math.max(2, Math.min(Theme.controlGap, Math.floor(gaps / options.length / 2)))
    readonly property real shownPart: Math.min(1, 1 + (gaps - 2 * padding * options.length) / textsWidth)  // of the texts

    /// The option that the Tab key reaches: the current one, or the first enabled one if that is disabled. -1 for none.
    readonly property int stop: options[currentIndex]?.enabled ?? true ? currentIndex
        : options.findIndex(option => option.enabled ?? true)

    /// Requests the next enabled option in the direction `by` (1 or -1). If there is none, as at either end, moves the
    /// keyboard focus on in the key group that contains this choice.
    function step(event, by) {
        let next = currentIndex + by;
        while (options[next] && !(options[next].enabled ?? true))
            next += by;
        if (!options[next]) {
            event.accepted = currentIndex >= 0 && KeyGroups.stepPlainly(choices.itemAt(stop), event, by);
            return;
        }
        activated(next);
        if (currentIndex === next)
            choices.itemAt(next).forceActiveFocus(Qt.TabFocusReason);
    }

    implicitWidth: segments.implicitWidth + 2 * Theme.line
    implicitHeight: Theme.controlHeight
    border.color: Theme.colours.line
    border.width: Theme.line
    color: Theme.colours.surface
    radius: Theme.controlRadius

    Accessible.role: Accessible.Grouping

    FontMetrics {
        id: metrics
        font: Theme.buttonFont
    }
    Row {
        id: segments
        x: Theme.line
        y: Theme.line

        // qmllint disable unqualified
        Repeater {
            id: choices
            model: root.options

            OVAbstractButton {
                id: segment

                required property int index
                required property var modelData
                readonly property bool chosen: index === root.currentIndex

                implicitWidth: Math.floor(label.implicitWidth * root.shownPart) + 2 * root.padding
                implicitHeight: root.height - 2 * Theme.line
                checkable: false
                ownArrows: true
                checked: chosen
                focusPolicy: index === root.stop ? Qt.StrongFocus : Qt.ClickFocus
                enabled: modelData.enabled ?? true
                objectName: modelData.objectName
                text: modelData.text
                toolTip: modelData.toolTip ?? ""

                Accessible.role: Accessible.RadioButton
                Accessible.checked: chosen

                onClicked: root.activated(index)
                Keys.onLeftPressed: event => root.step(event, -1)
                Keys.onRightPressed: event => root.step(event, 1)

                contentItem: OVLabel {
                    id: label
                    color: !segment.enabled ? Theme.colours.disabledText
                        : segment.chosen ? Theme.colours.accent : Theme.colours.sub
                    font: Theme.buttonFont
                    horizontalAlignment: Text.AlignHCenter
                    text: segment.text
                }

                background: Rectangle {
                    color: segment.chosen ? Theme.colours.accentSoft
                        : segment.hovered ? Theme.colours.hover : Theme.colours.surface
                    radius: Theme.controlRadius - Theme.line

                    OVFocusRing { shown: segment.visualFocus }
                }
            }
        }
        // qmllint enable unqualified
    }
}
