// Runs the commands of a workbook, which gets their answers, and opens the template of such a workbook.
import QtQuick
import configtools

Item {
    id: root

    required property var deviceFactory
    required property var workbooks  // CgiWorkbooks
    required property var cgiManager
    required property var fileDialogs
    required property bool shown  // the page is
    property string untold  // what has come of a workbook, until the page is shown
    signal said(string message, int kind)

    function choose() {
        fileDialogs.chooseFile(qsTr("打开"), ["Excel Files (*.xlsx)"], path => workbooks.read(path));
    }

    function openTemplate() {
        if (!fileDialogs.exists(cgiManager.templateFile()) || !Qt.openUrlExternally(cgiManager.templateAddress()))
            said(qsTr("打开模板文件失败。"), OVToast.Error);
    }

    function ask(lines) {
        question.wanted().askEntries(qsTr("即将执行文件中的CGI命令，执行结果将记录在文件中"), lines, {
            title: qsTr("批量表单操作"), okText: qsTr("执行"), listed: true, action: names => workbooks.run(qsTr("批量表单操作"), names)
        });
    }

    /// On another page the user is at something else: only the first line is said there.
    function tellEnd(text) {
        untold = text;
        if (shown)
            tellUntold();
        else
            said(text.split("\n")[0], OVToast.Information);
    }

    function tellUntold() {
        if (untold !== "")
            outcome.wanted().show(untold, OVMessageBox.Information);
        untold = "";
    }

    visible: false
    onShownChanged: if (shown) tellUntold()

    Connections {
        target: root.workbooks

        function onWasRead(lines) {
            root.ask(lines);
        }
        function onEnded(text) {
            root.tellEnd(text);
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
