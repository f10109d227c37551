// Asks for a command for all ticked devices.
import QtQuick
import configtools

OVDialog {
    id: root

    required property CgiCommands commands
    required property CgiSender sender
    property int deviceCount: 0
    property string fault
    signal confirmed(string command)

    function ask(count) {
        deviceCount = count;
        fault = "";
        open();
    }

    wantedWidth: Theme.detailWidth
    objectName: "batchCgiWindow"
    title: qsTr("批量配置CGI")
    onOpened: command.forceActiveFocus()
    onAccepted: {
        const wanted = command.text.trim();
        fault = sender.faultOf(wanted);
        if (fault !== "") {
            refuse(fault);
            return;
        }
        close();
        confirmed(wanted);
    }

    Column {
        width: parent.width
        spacing: Theme.controlGap

        OVParagraph {
            width: parent.width
            color: Theme.colours.sub
            text: qsTr("向选中的 %n 台设备发送同一条命令：", "", root.deviceCount)
        }
        CgiCommandField {
            id: command
            width: parent.width
            commands: root.commands
            errorText: root.fault
            focus: true
            objectName: "batchCgiCommand"
            onEdited: root.fault = ""
        }
    }
}
