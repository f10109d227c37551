// A table cell with the result of a device or batch, and an icon for its kind.
import QtQuick
import configtools

OVTableCell {
    id: root

    /// A BatchResultModel.State: Failed, NotDone, Skipped, Waiting or Succeeded, in the order of the lists below.
    /// ToCome shows no icon.
    property int outcome: BatchResultModel.ToCome
    readonly property var signNames: ["error", "alert", "mixed", "ok", "ok"]
    readonly property var signColors: [Theme.colours.bad, Theme.colours.warn, Theme.colours.sub, Theme.colours.sub, Theme.colours.ok]

    OVIcon {
        id: sign
        anchors.verticalCenter: parent.verticalCenter
        color: root.signColors[root.outcome] ?? Theme.colours.clear
        name: root.signNames[root.outcome] ?? ""
        size: Theme.smallIconSize
        visible: root.outcome !== BatchResultModel.ToCome
    }
    OVLabel {
        id: resultLabel
        x: sign.visible ? sign.width + Theme.signGap : 0
        width: parent.width - x - Theme.unit
        height: parent.height
        color: root.outcome === BatchResultModel.Failed ? Theme.colours.bad : Theme.colours.text
        text: root.value ?? ""
    }
    HoverHandler {
        id: pointer
    }
    OVToolTip {
        shown: pointer.hovered && resultLabel.truncated
        text: resultLabel.text
    }
}
