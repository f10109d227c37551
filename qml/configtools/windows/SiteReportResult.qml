// The result of a site report: the paths of its files, and why a file is missing. The PDF file and the folder can be
// opened. Missing files can be written to another folder until the dialog is closed.
import QtQuick
import configtools

OVDialog {
    id: root

    required property SiteReport siteReport
    required property var fileDialogs  // a FileDialogs
    property var paths: []  // of the written files
    property string reason  // why files are missing, a line for each; "" if none is
    readonly property string documentPath: paths.find(path => path.endsWith(".pdf")) ?? ""

    /// Opens the dialog with the result of SiteReport::finished(), see `paths` and `reason`.
    function show(paths, reason) {
        root.paths = paths;
        root.reason = reason;
        open();
    }

    /// Opens a file or folder with the desktop; reports a failure.
    function openPath(path) {
        if (!Qt.openUrlExternally("file:///" + path.replace(/^\//, "").split("/").map(encodeURIComponent).join("/")))
            inform(qsTr("无法打开 %1").arg(path), OVToast.Error);
    }

    /// Asks for another folder, then closes the dialog and writes the missing files there. The owner shows the result
    /// of the following SiteReport::finished(). If writing cannot start, the dialog stays open and shows the reason.
    function chooseFolder() {
        fileDialogs.chooseFolder(qsTr("请选择文件夹"), folder => {
            if (siteReport.writeAgain(folder))
                close();
            else
                inform(siteReport.problem(), OVToast.Error);
        });
    }

    wantedWidth: Theme.dialogWidth
    hasCancel: documentPath !== ""
    objectName: "siteReportResult"
    cancelText: qsTr("关闭")
    okText: documentPath !== "" ? qsTr("打开PDF") : qsTr("关闭")
    title: qsTr("现场报告")
    onAccepted: {
        if (documentPath !== "")
            openPath(documentPath);
        else
            close();
    }
    onClosed: siteReport.discard()

    footContent: OVButton {
        anchors.verticalCenter: parent?.verticalCenter
        objectName: "reportFolderOpener"
        text: qsTr("打开文件夹")
        visible: root.paths.length > 0
        onClicked: root.openPath(root.paths[0].replace(/[^\/]*$/, ""))
    }

    Column {
        width: parent.width
        spacing: Theme.controlGap

        OVNotice {
            width: parent.width
            iconColor: Theme.colours.bad
            iconName: "error"
            messageName: "reportReason"
            text: root.reason
            visible: root.reason !== ""
        }
        OVButton {
            objectName: "otherReportFolder"
            text: qsTr("换一个文件夹…")
            visible: root.siteReport.canWriteAgain
            onClicked: root.chooseFolder()
        }
        OVNotice {
            width: parent.width
            iconColor: Theme.colours.ok
            iconName: "ok"
            messageName: "reportDone"
            text: qsTr("报告已生成")
            visible: root.reason === ""
        }
        // qmllint disable unqualified
        Repeater {
            model: root.paths

            OVParagraph {
                required property int index
                required property string modelData

                width: root.availableWidth - 2 * Theme.pageMargin
                color: Theme.colours.sub
                objectName: "reportPath" + index
                text: modelData
            }
        }
        // qmllint enable unqualified
    }
}
