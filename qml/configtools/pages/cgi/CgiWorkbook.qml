// Reads the commands of a workbook, sends them in a batch after a confirmation, and writes the responses to the same
// file. Also opens the template.
import QtQuick
import configtools

Item {
    id: root

    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    required property var workbooks  // a CgiWorkbooks, which reads and runs the workbook
    required property var cgiManager  // a CGIConfigManage, which has the path of the template
    required property var fileDialogs  // a FileDialogs: the desktop's dialogs for files and folders
    required property bool shown  // the page is visible
    /// Message about a workbook that was not shown yet, as the page is hidden; "" for none.
    property string pendingOutcome
    signal notify(string message, int severity)  // show this message; severity: an OVToast.Severity

    /// Asks for a workbook and reads it. The confirmation follows, or a message why the workbook cannot be used.
    function choose() {
        fileDialogs.chooseFile(qsTr("打开"), ["Excel Files (*.xlsx)"], path => workbooks.read(path));
    }

    /// Opens the template in the desktop's application. Notifies a failure.
    function openTemplate() {
        if (!fileDialogs.exists(cgiManager.templateFile()) || !Qt.openUrlExternally(cgiManager.templateAddress()))
            notify(qsTr("打开模板文件失败。"), OVToast.Error);
    }

    /// Confirms the lines of the workbook and runs the ticked ones. `lines`: maps with "name" (unique), "title",
    /// "ipport", "action" (the command) and "hindrance" (why the command must not be sent; "" for none).
    function ask(lines) {
        question.instance().askEntries(qsTr("即将执行文件中的CGI命令，执行结果将记录在文件中"), lines, {
            title: qsTr("批量表单操作"), okText: qsTr("执行"), listed: true, action: names => workbooks.run(qsTr("批量表单操作"), names)
        });
    }

    /// Shows the result of a workbook, or why it was not run. While another page is shown, only the first line is
    /// notified; the complete text follows when this page is shown.
    function notifyEnd(text) {
        pendingOutcome = text;
        if (shown)
            showPendingOutcome();
        else
            notify(text.split("\n")[0], OVToast.Information);
    }

    /// Shows the pending message, if any.
    function showPendingOutcome() {
        if (pendingOutcome !== "")
            outcome.instance().show(pendingOutcome, OVMessageBox.Information);
        pendingOutcome = "";
    }

    visible: false
    onShownChanged: if (shown) showPendingOutcome()

    Connections {
        target: root.workbooks

        function onWasRead(lines) {
            root.ask(lines);
        }
        function onEnded(text) {
            root.notifyEnd(text);
        }
    }
    // qmllint disable unqualified
    OVOnDemand {
        id: question
        visible: false
        sourceComponent: BatchPreviewDialog {
            deviceFactory: root.deviceFactory
        }
    }
    OVOnDemand {
        id: outcome
        visible: false
        sourceComponent: OVMessageBox {
            objectName: "workbookOutcome"
            title: qsTr("批量表单操作")
        }
    }
    // qmllint enable unqualified
}
