// Runs the commands of a workbook, which gets their answers, and opens the template of such a workbook.
import QtQuick
import configtools

Item {
    id: root

    required property var cgiManager
    required property var fileDialogs
    property bool running: false
    property int done: 0
    property int total: 0
    readonly property real progress: total > 0 ? done / total : -1
    property string current
    property alias stopper: hold.stopper
    readonly property string runningText: qsTr("正在执行文件中的CGI命令…") + qsTr("（按Esc停止）")
    signal said(string message, int kind)

    function choose() {
        fileDialogs.chooseFile(qsTr("打开"), ["Excel Files (*.xlsx)"], path => {
            const box = question.wanted();
            box.path = path;
            box.show(qsTr("即将执行文件中的CGI命令，执行结果将记录在文件中"), OVMessageBox.Question);
        });
    }

    function openTemplate() {
        if (!fileDialogs.exists(cgiManager.templateFile()) || !Qt.openUrlExternally(cgiManager.templateAddress()))
            said(qsTr("打开模板文件失败。"), OVToast.Error);
    }

    function run(path) {
        running = true;
        done = total = 0;
        current = "";
        hold.open();
        beginning.path = path;
        beginning.start();
    }

    visible: false

    Connections {
        enabled: root.running
        target: root.cgiManager

        function onSignalBatchProgress(done, total, command) {
            root.done = done;
            root.total = total;
            root.current = command;
        }
    }
    // The window refuses to close while a workbook runs, and a recording may take hours.
    Connections {
        enabled: root.running
        target: root.Window.window

        function onClosing() {
            root.cgiManager.stop();
        }
    }
    OVInputHold {
        id: hold
        onEscapePressed: root.cgiManager.stop()
    }
    Timer {
        id: beginning
        property string path
        interval: 2 * Theme.paintEvery  // the page shows that work has begun
        onTriggered: {
            const said = root.cgiManager.batchCGIConfig(path);
            root.running = false;
            hold.release();
            outcome.wanted().show(said, OVMessageBox.Information);
        }
    }
    // qmllint disable unqualified
    OVOnDemand {
        id: question
        visible: false
        sourceComponent: OVMessageBox {
            property string path
            objectName: "workbookQuestion"
            onAccepted: root.run(path)
        }
    }
    OVOnDemand {
        id: outcome
        visible: false
        sourceComponent: OVMessageBox {
            objectName: "workbookOutcome"
        }
    }
    // qmllint enable unqualified
}
