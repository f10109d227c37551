// Asks for the data of a site report and starts it. The batch of the report runs as every other one: the dialog closes.
// If nothing was started, the dialog stays open; it shows the reason, except that of Batches.refused().
import QtQuick
import configtools

OVDialog {
    id: root

    required property SiteReport siteReport  // makes the report
    required property var fileDialogs  // a FileDialogs
    required property var memory  // a ViewMemory that stores the input
    property var ticked: []  // names of the ticked rows
    property var listed: []  // names of all rows
    property bool onlyTicked: false  // the chosen scope

    property string faultKind  // field of the error: "site", "folder" or "files"; "" for none
    property string fault  // error text, "" for none

    /// Opens the dialog. `ticked`: names of the ticked rows of the device list.
    function begin(ticked) {
        root.ticked = ticked;
        listed = siteReport.allDevices();
        onlyTicked = ticked.length > 0;
        siteField.text = memory.text("reportSite");
        installerField.text = memory.text("reportInstaller");
        folderField.text = memory.text("reportFolder") || siteReport.suggestedFolder;
        clearError();
        open();
    }

    /// Removes the error from its field.
    function clearError() {
        faultKind = "";
        fault = "";
    }

    /// Sets the error and its field.
    function note(kind, message) {
        faultKind = kind;
        fault = message;
    }

    /// Sets the error of the first invalid field, or no error.
    function check() {
        clearError();
        if (siteField.text.trim() === "")
            note("site", qsTr("请输入现场名称"));
        else if (!folderField.text.startsWith("/") && !/^[A-Za-z]:[\\/]/.test(folderField.text))
            note("folder", qsTr("请选择文件夹"));
        else if (!documentBox.checked && !workbookBox.checked)
            note("files", qsTr("请至少选择一种文件"));
        else if (devices().length === 0)
            note("files", qsTr("列表中没有设备"));
    }

    /// Names of the rows of the chosen scope.
    function devices() {
        return onlyTicked ? ticked : listed;
    }

    wantedWidth: Theme.dialogWidth
    objectName: "siteReportDialog"
    okText: qsTr("生成报告")
    title: qsTr("现场报告")
    onOpened: {
        siteField.forceActiveFocus();
        siteField.selectAll();
    }
    onAccepted: {
        check();
        if (fault !== "") {
            refuse(fault);
            return;
        }
        memory.keep("reportSite", siteField.text.trim());
        memory.keep("reportInstaller", installerField.text.trim());
        memory.keep("reportFolder", folderField.text);
        const begun = siteReport.begin({
            site: siteField.text.trim(), installer: installerField.text.trim(), folder: folderField.text,
            identities: devices(), document: documentBox.checked, workbook: workbookBox.checked
        });
        if (begun)
            close();
        else if (siteReport.running)
            refuse(qsTr("报告正在生成"));
        else if (siteReport.problem() !== "") {
            note("folder", siteReport.problem());
            refuse(fault);
        }
    }

    Column {
        width: parent.width
        spacing: Theme.controlGap

        OVFormRow {
            width: parent.width
            label: qsTr("现场名称")
            labelWidth: Theme.panelLabelWidth

            OVTextField {
                id: siteField
                width: parent.width
                accessibleName: qsTr("现场名称")
                errorText: root.faultKind === "site" ? root.fault : ""
                maximumLength: 80
                objectName: "reportSiteField"
                onEdited: root.clearError()
            }
        }
        OVFormRow {
            width: parent.width
            label: qsTr("安装人员")
            labelWidth: Theme.panelLabelWidth

            OVTextField {
                id: installerField
                width: parent.width
                accessibleName: qsTr("安装人员")
                maximumLength: 80
                objectName: "reportInstallerField"
            }
        }
        OVFormRow {
            id: folderRow
            width: parent.width
            label: qsTr("保存到")
            labelWidth: Theme.panelLabelWidth

            OVTextField {
                id: folderField
                width: folderRow.width - folderRow.labelWidth - Theme.unit - folderButton.width - Theme.unit
                accessibleName: qsTr("保存到")
                errorText: root.faultKind === "folder" ? root.fault : ""
                objectName: "reportFolderField"
                onEdited: root.clearError()
            }
            OVButton {
                id: folderButton
                x: folderField.width + Theme.unit
                objectName: "reportFolderButton"
                text: qsTr("选择…")
                onClicked: root.fileDialogs.chooseFolder(qsTr("请选择文件夹"), folder => {
                    folderField.text = folder;
                    root.clearError();
                })
            }
        }
        OVFormRow {
            width: parent.width
            label: qsTr("设备")
            labelWidth: Theme.panelLabelWidth

            OVSegmentedChoice {
                currentIndex: root.onlyTicked ? 1 : 0
                options: [
                    {text: qsTr("全部（%1）").arg(root.listed.length), objectName: "reportAllChoice"},
                    {text: qsTr("勾选的（%1）").arg(root.ticked.length), objectName: "reportTickedChoice"}
                ]
                onActivated: index => {
                    root.onlyTicked = index === 1;
                    root.clearError();
                }
            }
        }
        OVFormRow {
            width: parent.width
            label: qsTr("文件")
            labelWidth: Theme.panelLabelWidth

            Row {
                height: Theme.controlHeight
                spacing: 2 * Theme.pageMargin

                OVCheckBox {
                    id: documentBox
                    anchors.verticalCenter: parent.verticalCenter
                    checked: true
                    objectName: "reportDocumentBox"
                    text: "PDF"
                    onToggled: root.clearError()
                }
                OVCheckBox {
                    id: workbookBox
                    anchors.verticalCenter: parent.verticalCenter
                    checked: true
                    objectName: "reportWorkbookBox"
                    text: "Excel (.xlsx)"
                    onToggled: root.clearError()
                }
            }
        }
        OVParagraph {
            width: parent.width
            color: Theme.colours.sub
            font: Theme.hintFont
            text: qsTr("将登录每台设备，读取信息并获取图像。报告包含程序启动以来的更改，不含密码。")
        }
    }
}
