// Shows the complete response of a device, or another long text. The list shows long lines in parts and at most 100,000
// lines. Ctrl+C copies the current entry of the list. The buttons copy the complete text and save it to a file.
import QtQuick
import QtQuick.Templates as T
import configtools

OVDialog {
    id: root

    required property var cgiManager  // a CGIConfigManage: stored commands, clipboard, files
    required property var fileDialogs  // a FileDialogs: the desktop's dialogs for files and folders
    property string response  // the complete text

    /// Opens the window with this title and text.
    function show(heading, text) {
        title = heading;
        response = text;
        list.model = cgiManager.linesOf(text);
        list.currentIndex = 0;
        open();
    }

    /// Copies a text to the clipboard and shows that in the window.
    function copy(text) {
        cgiManager.copyText(text);
        inform(qsTr("复制成功"), OVToast.Success);
    }

    /// Saves the text to a new file in `folder` (a path), named by the time. Shows the path or the failure in the
    /// window.
    function save(folder) {
        const saved = cgiManager.saveText(folder, response);
        if (saved.failure !== "")
            inform(qsTr("文件写入失败：") + saved.failure, OVToast.Error);
        else
            inform(qsTr("已保存到文件：%1").arg(saved.path), OVToast.Success);
    }

    wantedWidth: Theme.responseWindowWidth
    cancelText: qsTr("关闭")
    objectName: "cgiResponseWindow"
    okText: qsTr("复制全部")
    onAccepted: copy(response)
    onOpened: list.forceActiveFocus()

    footContent: OVButton {
        anchors.verticalCenter: parent.verticalCenter
        objectName: "cgiResponseSaveButton"
        text: qsTr("保存")
        toolTip: qsTr("保存为文本文件")
        onClicked: root.fileDialogs.chooseFolder(qsTr("请选择文件夹"), folder => root.save(folder))
    }

    ListView {
        id: list
        width: parent.width
        height: Math.min(Theme.detailHeight, root.contentRoom)
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        highlightMoveDuration: 0  // no animation to the end of a long response
        keyNavigationEnabled: true
        objectName: "cgiResponseLines"

        Accessible.role: Accessible.List
        Accessible.name: root.title

        T.ScrollBar.vertical: OVScrollBar {}

        Keys.onPressed: event => {
            event.accepted = true;
            if (event.key === Qt.Key_C && event.modifiers & Qt.ControlModifier)
                root.copy(model[currentIndex] ?? "");
            else if (event.key === Qt.Key_Home)
                currentIndex = 0;
            else if (event.key === Qt.Key_End)
                currentIndex = count - 1;
            else
                event.accepted = false;
        }

        // qmllint disable unqualified
        delegate: Rectangle {
            id: line

            required property int index
            required property string modelData

            width: ListView.view.width
            height: responseText.height + Theme.half
            color: index === list.currentIndex && list.activeFocus ? Theme.colours.rowSelected : Theme.colours.clear

            Accessible.role: Accessible.ListItem
            Accessible.name: modelData

            Text {
                id: responseText
                width: line.width - Theme.pageMargin
                color: line.modelData.startsWith("Error:") ? Theme.colours.bad : Theme.colours.text
                font: Theme.figureFont
                renderType: Theme.textRendering
                text: line.modelData
                textFormat: Text.PlainText
                wrapMode: Text.WrapAnywhere
            }
            TapHandler {
                onTapped: list.currentIndex = line.index
            }
        }
        // qmllint enable unqualified
    }
}
