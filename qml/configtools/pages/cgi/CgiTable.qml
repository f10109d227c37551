// The devices of the CGI page: the answer to each one's last command, the command, and the button that sends it.
import QtQuick
import configtools

OVTable {
    id: root

    required property var deviceFactory
    required property CgiCommands commands
    signal sendRequested(int row)
    signal answerCopyRequested(string text)

    readonly property int tipLength: 1200  // letters of a long answer that a bubble shows

    columns: [
        {key: "num", title: "No.", width: Theme.columnNumber, cell: numberCell},
        {key: "model", title: qsTr("型号"), width: Theme.columnModel, stretch: 1, sortable: true},
        {key: "ipport", title: qsTr("IP:端口"), width: Theme.columnAddress, sortable: true, cell: addressCell},
        {key: "result", title: " ", width: Theme.columnAnswer, stretch: 4, cell: answerCell},
        {key: "url", title: qsTr("Url路径"), width: Theme.columnCommand, stretch: 5, cell: commandCell},
        {key: "operate", title: qsTr("操作"), width: Theme.columnShortActions, cell: actionCell}
    ]

    Component {
        id: numberCell
        OVTableTextCell {
            font: Theme.figureFont
            text: rowIndex + 1
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
        id: answerCell
        OVTableCell {
            id: answer
            readonly property string words: value ?? ""

            OVLabel {
                width: parent.width - Theme.unit
                height: parent.height
                color: answer.words.startsWith("Error:") ? Theme.colours.bad : Theme.colours.ink
                objectName: "cgiAnswer" + answer.rowIndex
                showsWholeOnHover: false
                text: answer.words.slice(0, root.tipLength).replace(/\s+/g, " ")
            }
            HoverHandler {
                id: pointer
                enabled: answer.words !== ""
            }
            OVToolTip {
                shown: pointer.enabled && pointer.hovered
                text: pointer.hovered ? (answer.words.length > root.tipLength
                    ? answer.words.slice(0, root.tipLength) + "…" : answer.words) + qsTr("\n右键点击可复制结果") : ""
            }
            TapHandler {
                acceptedButtons: Qt.RightButton
                enabled: answer.words !== ""
                onTapped: root.answerCopyRequested(answer.words)
            }
        }
    }
    Component {
        id: commandCell
        OVTableCell {
            id: command

            CgiCommandField {
                anchors.verticalCenter: parent.verticalCenter
                width: parent.width - Theme.unit
                commands: root.commands
                objectName: "cgiCommand" + command.rowIndex
                text: command.value ?? ""
                onAccepted: root.sendRequested(command.rowIndex)
                onEdited: root.deviceFactory.updataDeviceInfo("dh", "url", text, command.row.identity,
                                                              command.row.ipport)
                onActiveFocusChanged: if (!activeFocus) root.model.refreshDevice(command.row.identity)
            }
        }
    }
    Component {
        id: actionCell
        OVTableCell {
            id: action

            OVLinkButton {
                anchors.verticalCenter: parent.verticalCenter
                focusPolicy: action.current ? Qt.StrongFocus : Qt.NoFocus
                objectName: "cgiSend" + action.rowIndex
                text: qsTr("配置")
                toolTip: qsTr("向这台设备发送CGI命令")
                onClicked: root.sendRequested(action.rowIndex)
            }
        }
    }
    // qmllint enable unqualified
}
