// A table of the changes of a planned batch and possible problems. Unticked devices do not take part in the batch.
import QtQuick
import configtools

OVTable {
    id: root

    required property BatchPreview preview  // the model; also stores the ticks
    // At most one of these is true.
    property bool givesAddresses: false  // the change is a new address
    property bool givesFirmware: false   // the change is a firmware upgrade
    property bool givesNames: false      // the change is a new name of a camera or channel

    checkState: preview.checkState
    columns: [
        {key: "num", title: qsTr("No."), width: Theme.columnNumber, leastWidth: Theme.columnUpgradeNumber, cell: figures},
        {key: "title", title: qsTr("名称和型号"), width: Theme.columnModel, stretch: 1},
        {
            key: "ipport", title: givesAddresses ? qsTr("原地址") : qsTr("IP:端口"),
            width: givesAddresses ? Theme.columnPlanAddress : Theme.columnAddress, cell: address
        },
        givesFirmware ? {key: "vision", title: qsTr("版本号"), width: Theme.columnVersion, cell: quietFigures}
            : {key: "mac", title: "MAC", width: Theme.columnMac, cell: quietFigures},
        {
            key: "action", title: givesAddresses ? qsTr("新地址") : givesFirmware ? qsTr("升级文件")
                : givesNames ? qsTr("新名称") : qsTr("操作"),
            width: givesAddresses ? Theme.columnPlanAddress : Theme.columnPlanAction,
            stretch: givesFirmware ? 1 : 0, cell: actionCell
        },
        {
            key: "note", title: qsTr("提示"), width: Theme.columnPlanMark, leastWidth: Theme.columnPlanNoteLeast, cell: noteCell
        }
    ]
    model: preview
    onAllToggled: checked => preview.setAllChecked(checked)
    onRangeToggled: (first, last, checked) => preview.setRangeChecked(first, last, checked)

    Component {
        id: figures
        OVTableTextCell {
            font: Theme.figureFont
        }
    }
    Component {
        id: quietFigures
        OVTableTextCell {
            color: Theme.colours.sub
            font: Theme.figureFont
        }
    }

    // qmllint disable unqualified
    Component {
        id: address
        OVTableTextCell {
            color: Theme.colours.sub
            font: Theme.figureFont
            // The port does not change.
            text: root.givesAddresses ? (value ?? "").replace(/:\d*$/, "") : value ?? ""
        }
    }
    Component {
        id: actionCell
        OVTableTextCell {
            font: root.givesAddresses ? Theme.figureFont : Theme.bodyFont
        }
    }
    // qmllint enable unqualified
    Component {
        id: noteCell
        OVTableCell {
            id: note
            readonly property bool skipped: row?.kind === BatchPreview.Skipped

            OVIcon {
                id: sign
                anchors.verticalCenter: parent.verticalCenter
                color: note.conflict ? Theme.colours.bad : note.skipped ? Theme.colours.sub : Theme.colours.warn
                name: note.skipped ? "mixed" : "alert"
                size: Theme.smallIconSize
                visible: noteLabel.text !== ""
            }
            OVLabel {
                id: noteLabel
                anchors.left: sign.right
                anchors.leftMargin: Theme.signGap
                anchors.right: parent.right
                anchors.rightMargin: Theme.unit
                height: parent.height
                text: note.value ?? ""
            }
            HoverHandler {
                id: pointer
            }
            OVToolTip {
                shown: pointer.hovered && noteLabel.truncated
                text: noteLabel.text
            }
        }
    }
}
