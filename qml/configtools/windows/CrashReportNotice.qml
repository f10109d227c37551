// A notice across the window after an unexpected end of the application. Its link shows the reports, which are deleted
// when the user has closed them. The close button only hides the notice: the next start shows it again.
import QtQuick
import configtools

OVBanner {
    id: root

    required property var reports  // a CrashReports
    required property var cgiManager  // a CGIConfigManage, which copies and saves texts
    required property var fileDialogs  // a FileDialogs
    property bool closedByUser: false

    closable: true
    iconName: "alert"
    linkText: qsTr("显示报告")
    objectName: "crashReportNotice"
    text: qsTr("程序上次异常退出，已写入报告")
    visible: reports.count > 0 && !closedByUser
    onClosed: closedByUser = true
    onLinkActivated: dialog.instance().show(qsTr("异常退出报告"), reports.text())

    // qmllint disable unqualified
    OVOnDemand {
        id: dialog
        visible: false
        sourceComponent: CgiResponseWindow {
            cgiManager: root.cgiManager
            fileDialogs: root.fileDialogs
            onClosed: root.reports.remove()
        }
    }
    // qmllint enable unqualified
}
