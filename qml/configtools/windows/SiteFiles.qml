// Opens and saves sites: file dialogs, questions and messages. While work needs the device list or an upgrade runs, a
// site can be saved, but not opened or replaced.
import QtQuick
import configtools

Item {
    id: root

    required property BusyState busyState  // running work of all pages, and the actions that it blocks
    required property var fileDialogs  // a FileDialogs: the desktop's dialogs for files and folders
    required property KnownDevices knownDevices  // the present site; opens and saves the files
    readonly property var nameFilters: [qsTr("现场文件 (*.site)")]
    signal notify(string message, int severity)  // severity: of OVToast

    /// Notifies why the site cannot be replaced now, and returns true; otherwise returns false.
    function refuses() {
        const refusal = busyState.refusal(BusyState.Search);
        if (refusal !== "")
            notify(refusal, OVToast.Refusal);
        return refusal !== "";
    }

    /// Asks for a file and opens it.
    function chooseSite() {
        if (!refuses())
            fileDialogs.chooseFile(qsTr("打开现场"), nameFilters, path => root.openSite(path));
    }

    /// Opens a site file and notifies the result.
    function openSite(path) {
        if (refuses())
            return;
        const failure = knownDevices.open(path);
        if (failure === "")
            notify(qsTr("已打开现场“%1”，共 %n 台设备", "", knownDevices.count).arg(knownDevices.siteName),
                   OVToast.Success);
        else
            notify(qsTr("无法打开现场 %1：%2").arg(path).arg(failure), OVToast.Error);
    }

    /// Asks for a file and saves the site to it.
    function saveSite() {
        const name = knownDevices.siteName !== "" ? knownDevices.siteName : qsTr("现场");
        fileDialogs.chooseNewFile(qsTr("现场另存为"), nameFilters, name + ".site", path => {
            const failure = knownDevices.saveAs(path);
            if (failure === "")
                notify(qsTr("现场已保存到 %1").arg(path) + "\n" + qsTr("文件不含密码。"), OVToast.Success);
            else
                notify(failure, OVToast.Error);
        });
    }

    /// Replaces the site by an empty one, after a question.
    function startNew() {
        if (!refuses())
            question.instance().show(qsTr("新建现场后，已知设备和分组从列表中清除。未保存的更改会保留在最近的现场中。"),
                                     OVMessageBox.Question);
    }

    visible: false

    // qmllint disable unqualified
    OVOnDemand {
        id: question
        visible: false
        sourceComponent: OVMessageBox {
            objectName: "newSiteQuestion"
            okText: qsTr("新建")
            title: qsTr("新建现场")
            onAccepted: {
                const failure = root.knownDevices.startNew();
                if (failure !== "")
                    root.notify(failure, OVToast.Error);
            }
        }
    }
    // qmllint enable unqualified
}
