// Runs the commands of a workbook and writes the responses to it. Opens the template.
import QtQuick
import configtools

Item {
    id: root

    required property var deviceFactory
    required property var workbooks  // a CgiWorkbooks
    required property var cgiManager
    required property var fileDialogs
    required property bool shown  // the page is visible
    property string pendingOutcome  // result of a workbook until the page is shown
    signal notify(string message, int severity)

    function choose() {
        fileDialogs.chooseFile(qsTr("打开"), ["Excel Files (*.xlsx)"], path => workbooks.read(path));
    }

    function openTemplate() {
        if (!fileDialogs.exists(cgiManager.templateFile()) || !Qt.openUrlExternally(cgiManager.templateAddress()))
            notify(qsTr("打开模板文件失败。"), OVToast.Error);
    }

    function ask(lines) {
        question.instance().askEntries(qsTr("即将执行文件中的CGI命令，执行结果将记录在文件中"), lines, {
            title: qsTr("批量表单操作"), okText: qsTr("执行"), listed: true, action: names => workbooks.run(qsTr("批量表单操作"), names)
        });
    }

    /// While another page is shown, only the first line is reported; the result follows when this page is shown.
    function notifyEnd(text) {
        pendingOutcome = text;
        if (shown)
            showPendingOutcome();
        else
            notify(text.split("\n")[0], OVToast.Information);
    }

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
