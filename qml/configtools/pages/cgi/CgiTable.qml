// The table of the CGI page: last response, command and send button of each device. A typed command is stored in the
// row of the device list. The table sends nothing; the page handles the signals. F2 requests the note of the current
// row.
import QtQuick
import configtools

OVTable {
    id: root

    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    required property CgiCommands commands  // recent and favourite commands
    property int editRow: -1  // row whose field gets the keyboard focus when it is created; -1 for none
    signal sendRequested(int row)  // send the command of the row
    signal responseCopyRequested(int row)  // copy the complete response
    signal responseOpenRequested(int row)  // show the complete response
    signal noteRequested(int row)  // edit the note

    readonly property int tipLength: 3000  // maximum characters of a response in a tool tip

    /// The start of a response for a tool tip, with "…" if it is longer.
    function startOf(response) {
        return response.slice(0, tipLength).replace(/\s+$/, "") + (response.length > tipLength ? "…" : "");
    }

    /// Makes a row current and focuses its command field.
    function edit(row) {
        editRow = row;
        show(row);
    }

    arrangeable: true
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_F2 && currentIndex >= 0;
        if (event.accepted)
            noteRequested(currentIndex);
    }

    // The keys are those of the rows of the device list. "result": start of the last response, or "Error:" and the
    // reason. "url": the command.
    columns: [
        {key: "num", title: qsTr("No."), width: Theme.columnNumber, cell: numberCell},
        {key: "model", title: qsTr("型号"), width: Theme.columnModel, stretch: 1, sortable: true, cell: modelCell},
        {key: "ipport", title: qsTr("IP:端口"), width: Theme.columnAddress, sortable: true, cell: addressCell},
        {key: "note", title: qsTr("备注"), width: Theme.columnNote, stretch: 1, sortable: true, hidden: true},
        {key: "result", title: qsTr("应答"), width: Theme.columnResponse, stretch: 4, cell: responseCell},
        {key: "url", title: qsTr("Url路径"), width: Theme.columnCommand, stretch: 5, cell: commandCell},
        {key: "operate", title: qsTr("操作"), width: Theme.columnShortActions, fixed: true, cell: actionCell}
    ]

    Component {
        id: numberCell
        OVTableTextCell {
            font: Theme.figureFont
            text: rowIndex + 1
        }
    }
    Component {
        id: modelCell
        OVTableCell {
            id: model

            OVFailedSign {
                id: sign
                anchors.verticalCenter: parent.verticalCenter
                failure: model.row?.failure ?? ""
                onlyNotDone: model.row?.onlyNotDone ?? false
            }
            OVLabel {
                x: sign.visible ? sign.width + Theme.signGap : 0
                width: parent.width - x - Theme.unit
                height: parent.height
                text: model.value ?? ""
            }
        }
    }
    Component {
        id: addressCell
        OVTableTextCell {
            font: Theme.figureFont
        }
    }
    // qmllint disable unqualified
    Component {
        id: responseCell
        OVTableCell {
            id: response
            readonly property string content: value ?? ""

            OVLabel {
                width: opener.x - Theme.half
                height: parent.height
                color: response.content.startsWith("Error:") ? Theme.colours.bad : Theme.colours.text
                objectName: "cgiResponse" + response.rowIndex
                showsFullTextOnHover: false
                text: response.content.slice(0, 400).replace(/\s+/g, " ")
            }
            HoverHandler {
                id: pointer
                enabled: response.content !== ""
            }
            OVToolTip {
                footnote: qsTr("\n右键点击可复制结果").trim()
                shown: pointer.enabled && pointer.hovered && !opener.hovered
                text: pointer.hovered ? root.startOf(response.content) : ""
                widest: Theme.responseTipWidth
            }
            OVIconButton {
                id: opener
                anchors.right: parent.right
                anchors.rightMargin: Theme.unit
                anchors.verticalCenter: parent.verticalCenter
                implicitWidth: Theme.unit * 3
                implicitHeight: Theme.unit * 3
                enabled: response.content !== ""
                focusPolicy: response.current || activeFocus ? Qt.StrongFocus : Qt.NoFocus
                iconName: "stretch"
                iconSize: Theme.smallIconSize
                objectName: "cgiResponseOpen" + response.rowIndex
                opacity: enabled && (pointer.hovered || response.current || activeFocus) ? 1 : 0
                toolTip: qsTr("查看全部内容")
                onClicked: root.responseOpenRequested(response.rowIndex)
            }
            TapHandler {
                acceptedButtons: Qt.RightButton
                enabled: response.content !== ""
                gesturePolicy: TapHandler.ReleaseWithinBounds  // the row must not receive the click, as it has a menu
                onTapped: root.responseCopyRequested(response.rowIndex)
            }
        }
    }
    // Only the current row has a field. Other rows are reused when they scroll out of view.
    Component {
        id: commandCell
        OVTableCell {
            id: command
            readonly property string stored: value ?? ""
            onStoredChanged: {
                const edited = field.item as CgiCommandField;
                if (edited && edited.text !== stored)
                    edited.text = stored;
            }

            Loader {
                id: field
                anchors.verticalCenter: parent.verticalCenter
                width: parent.width - Theme.unit
                active: command.current
                sourceComponent: CgiCommandField {
                    commands: root.commands
                    objectName: "cgiCommand" + command.rowIndex
                    onAccepted: root.sendRequested(command.rowIndex)
                    onEdited: {
                        root.deviceFactory.updataDeviceInfo("dh", "url", text, command.row.identity, command.row.ipport);
                        root.model.refreshDevice(command.row.identity);
                    }
                }
                onLoaded: {
                    (item as CgiCommandField).text = command.stored;
                    if (root.editRow !== command.rowIndex)
                        return;
                    root.editRow = -1;
                    item.forceActiveFocus();
                }
            }
            Rectangle {
                anchors.verticalCenter: parent.verticalCenter
                width: parent.width - Theme.unit - Theme.controlHeight
                height: Theme.controlHeight
                border.color: pointer.hovered ? Theme.colours.lineStrong : Theme.colours.line
                border.width: Theme.line
                color: Theme.colours.surface
                objectName: "cgiCommand" + command.rowIndex
                radius: Theme.controlRadius
                visible: !command.current

                OVLabel {
                    x: Theme.controlGap
                    width: parent.width - 2 * x
                    height: parent.height
                    color: command.stored !== "" ? Theme.colours.text : Theme.colours.faint
                    font: Theme.figureFont
                    text: command.stored !== "" ? command.stored : "/cgi-bin/"
                }
                HoverHandler {
                    id: pointer
                    cursorShape: Qt.IBeamCursor
                }
                MouseArea {
                    anchors.fill: parent
                    onClicked: root.edit(command.rowIndex)
                }
            }
        }
    }
    Component {
        id: actionCell
        OVTableCell {
            id: action
            readonly property bool upgrading: UpgradeTools.isRunning(row?.upgraderes ?? UpgradeTools.None)

            OVLinkButton {
                anchors.verticalCenter: parent.verticalCenter
                enabled: !action.upgrading
                focusPolicy: action.current || activeFocus ? Qt.StrongFocus : Qt.NoFocus
                objectName: "cgiSend" + action.rowIndex
                text: qsTr("配置")
                toolTip: action.upgrading ? qsTr("设备正在升级，不能发送CGI命令") : qsTr("向这台设备发送CGI命令")
                onClicked: root.sendRequested(action.rowIndex)
            }
        }
    }
    // qmllint enable unqualified
}
