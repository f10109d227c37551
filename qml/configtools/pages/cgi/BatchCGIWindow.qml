// Asks for the command that all ticked devices get. It sends nothing.
import QtQuick
import configtools

OVDialog {
    id: root

    required property CgiCommands commands  // recent and favourite commands
    required property CgiSender sender  // checks the command
    property int deviceCount: 0  // number of ticked devices, for the text
    property string fault  // error of the command, "" for none
    signal confirmed(string command)  // a valid command without spaces at its ends; the window has closed

    /// Opens the window; its field keeps the command that was entered last. `count`: number of devices.
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
