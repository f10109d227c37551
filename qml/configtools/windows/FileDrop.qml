// Accepts a file that is dragged into the window. It only requests; the owner opens the file. While a dialog is open,
// and for files of another kind, it notifies the reason after the drop.
import QtQuick
import QtQuick.Templates as T
import configtools

DropArea {
    id: root

    required property var leavePage  // a function: runs an action unless the user keeps unsaved settings of the page
    signal listDropped(string path)  // a device list, also an encrypted one; the page can be left
    signal siteDropped(string path)  // a site file; `leavePage` is not called
    signal notify(string message, int severity)  // severity: of OVToast

    /// Whether a modal dialog is open. The window is inactive during a drag, so that no item has the keyboard focus.
    function hasDialog() {
        const items = T.Overlay.overlay?.children ?? [];
        for (let index = 0; index < items.length; ++index) {
            if (items[index].objectName === "dialogDim" && items[index].visible)
                return true;
        }
        return false;
    }

    /// Requests what the dropped files are for, or notifies why they are refused.
    function take(urls) {
        const refusal = DroppedFiles.refusalOf(urls);
        const path = DroppedFiles.pathOf(urls);
        if (refusal !== "")
            notify(refusal, OVToast.Refusal);
        else if (hasDialog())
            notify(qsTr("请先关闭对话框，再拖入文件"), OVToast.Refusal);
        else if (DroppedFiles.kindOf(path) === DroppedFiles.SiteFile)
            siteDropped(path);
        else
            leavePage(() => listDropped(path));
    }

    keys: ["text/uri-list"]
    objectName: "fileDrop"
    onEntered: drag => drag.accepted = drag.hasUrls
    onDropped: drop => {
        drop.accept(Qt.CopyAction);
        take(drop.urls);
    }

    Rectangle {
        anchors.fill: parent
        border.color: Theme.colours.accent
        border.width: Theme.focusRing
        color: Theme.colours.rowHoverVeil
        objectName: "dropVeil"
        visible: root.containsDrag

        Rectangle {
            anchors.centerIn: parent
            width: hint.implicitWidth + 4 * Theme.pageMargin
            height: hint.implicitHeight + 2 * Theme.pageMargin
            border.color: Theme.colours.line
            border.width: Theme.line
            color: Theme.colours.surface
            radius: Theme.paneRadius

            OVLabel {
                id: hint
                anchors.centerIn: parent
                font: Theme.titleFont
                text: qsTr("松开鼠标，导入设备列表或打开现场")
            }
        }
    }
}
