// What has come of a device or a batch, with the sign of its kind.
import QtQuick
import configtools

OVTableCell {
    id: root

    property int outcome: BatchResultModel.ToCome
    readonly property var signNames: ["error", "alert", "mixed", "ok", "ok"]
    readonly property var inks: [Theme.colours.bad, Theme.colours.warn, Theme.colours.sub, Theme.colours.sub, Theme.colours.ok]

    OVIcon {
        id: sign
        anchors.verticalCenter: parent.verticalCenter
        color: root.inks[root.outcome] ?? Theme.colours.clear
        name: root.signNames[root.outcome] ?? ""
        size: Theme.smallIconSize
        visible: root.outcome !== BatchResultModel.ToCome
    }
    OVLabel {
        id: words
        x: sign.visible ? sign.width + Theme.signGap : 0
        width: parent.width - x - Theme.unit
        height: parent.height
        color: root.outcome === BatchResultModel.Failed ? Theme.colours.bad : Theme.colours.ink
        text: root.value ?? ""
    }
    HoverHandler {
        id: pointer
    }
    OVToolTip {
        shown: pointer.hovered && words.truncated
        text: words.text
    }
}
