// The favourites window: adds favourites to the device list in a batch of logins, shows the results, edits notes and
// deletes favourites. The batch continues when the window is closed.
import QtQuick
import configtools

OVDialog {
    id: root

    required property var addingBatches  // an AddingBatches: starts batches that add devices to the list
    required property Batches batches  // starts batches for all pages; one batch runs at a time
    required property Favourites favourites  // reads and writes the files
    readonly property bool running: batch?.running ?? false  // its batch runs: favourites cannot be edited
    property Batch batch: null  // last batch started here or its retry; null before
    signal byHandRequested  // open the dialog for a device by hand; the window has closed
    /// Ask for the password of this favourite (see FavouriteListModel.device()) and add it; the window has closed.
    signal passwordRequested(var device)

    /// Reads the favourites and opens the window. Ticks and results of an ended batch are cleared.
    function begin() {
        filter.text = "";
        if (!running) {
            saved.forgetProgress();
            saved.setAllChecked(false);
        }
        saved.load(favourites.list());
        open();
    }

    /// Starts a batch that adds the favourites with these identities (file names). Those whose password is not
    /// available are left out; for a single one, passwordRequested() is emitted. Does nothing while the batch of this
    /// window runs. If another batch runs, Batches emits refused() and nothing starts.
    function addThese(identities) {
        if (running || identities.length === 0)
            return;
        const isUsable = identity => saved.device(identity).cipher !== "";
        if (!identities.every(isUsable))
            saved.load(favourites.list());  // the service with the passwords may have been unlocked meanwhile
        const usable = identities.filter(isUsable);
        if (usable.length === 0 && identities.length === 1) {
            close();
            passwordRequested(saved.device(identities[0]));
            return;
        }
        const left = identities.filter(identity => !usable.includes(identity));
        saved.takeResults(left.map(identity => ({
            identity: identity, result: -1, message: qsTr("密码无法读取，双击该行输入密码")
        })), "");
        if (usable.length === 0)
            return;
        const begun = addingBatches.addDevices(qsTr("添加收藏设备"), saved.devicesToAdd(usable));
        if (begun === null)
            return;
        batch = begun;
        saved.setRunning(usable, qsTr("正在添加…"));
    }

    /// Stores the note of a favourite (`identity`: its file name). After a failure the earlier note is shown.
    function changeNote(identity, note) {
        const device = saved.device(identity);
        device.note = note;
        const fileName = favourites.save(device);
        if (fileName === "")
            inform(qsTr("备注无法保存，请检查程序所在文件夹的写入权限"), OVToast.Error);
        else if (fileName !== identity)
            favourites.remove(identity);  // the favourite was stored under an earlier file name
        saved.load(favourites.list());
        table.show(saved.rowOf(fileName));
        table.forceActiveFocus();
    }

    /// Deletes a favourite (`identity`: its file name) without a question. Its device stays in the device list.
    function remove(identity) {
        if (!favourites.remove(identity))
            inform(qsTr("收藏无法删除，请检查程序所在文件夹的写入权限"), OVToast.Error);
        saved.load(favourites.list());
    }

    wantedWidth: Theme.favouritesWidth
    height: Math.min(Theme.favouritesHeight, mostHeight)
    scrolls: false
    cancelText: qsTr("关闭")
    objectName: "favouritesWindow"
    okEnabled: saved.checkedCount > 0 && !running
    okText: qsTr("添加")
    title: qsTr("收藏夹")
    onAccepted: addThese(saved.checkedIdentities())
    onOpened: filter.forceActiveFocus()

    Connections {
        target: root.addingBatches

        function onTried(results) {
            saved.takeResults(results, qsTr("已添加"));
        }
    }
    Connections {
        target: root.batches

        function onRetried(earlier, again) {
            if (earlier === root.batch)
                root.batch = again;
        }
    }
    FavouriteListModel {
        id: saved
        searchText: filter.text
    }

    footContent: OVFootBar {
        anchors.fill: parent
        batches: root.batch !== null && root.batches.current === root.batch ? root.batches : null
        compact: true
        //: Follows a number, as in "3 favourites selected".
        text: saved.checkedCount + " " + qsTr("个收藏已选中", "", saved.checkedCount)
    }

    OVTextField {
        id: filter
        width: Theme.searchFieldWidth
        anchors.right: parent.right
        clearable: true
        enabled: !root.running
        iconName: "search"
        objectName: "favouriteFilter"
        placeholderText: qsTr("搜索…")
        Keys.onReturnPressed: table.forceActiveFocus()
        Keys.onEnterPressed: table.forceActiveFocus()
    }
    OVLabel {
        anchors.left: parent.left
        anchors.right: filter.left
        anchors.rightMargin: Theme.pageMargin
        height: filter.height
        color: Theme.colours.sub
        text: qsTr("双击一行可添加该设备")
        visible: saved.totalCount > 0
    }
    FavouriteTable {
        id: table
        y: filter.height + Theme.controlGap
        width: parent.width
        height: parent.height - y
        checkState: saved.checkState
        editable: !root.running
        focus: true
        model: saved
        objectName: "favouriteTable"
        onAllToggled: checked => { if (editable) saved.setAllChecked(checked); }
        onCopyRequested: row => clipboard.copy(saved.textOf(row))
        onDeletionRequested: row => confirmation.ask(saved.get(row))
        onNoteEdited: (row, note) => root.changeNote(saved.get(row).fileName, note)
        onRangeToggled: (first, last, checked) => { if (editable) saved.setRangeChecked(first, last, checked); }
        onRowActivated: row => root.addThese([saved.get(row).fileName])

        OVEmptyState {
            anchors.fill: parent
            actionText: saved.totalCount > 0 ? qsTr("清除筛选") : qsTr("手动添加设备")
            hint: saved.totalCount > 0 ? qsTr("换一个搜索文字，或清除它。")
                : qsTr("手动添加设备时勾选“添加到收藏夹”，设备就会保存在这里。")
            iconName: saved.totalCount > 0 ? "filtered" : "favourite"
            title: saved.totalCount > 0 ? qsTr("没有符合搜索文字的收藏") : qsTr("收藏夹是空的")
            onActivated: {
                if (saved.totalCount > 0) {
                    filter.text = "";
                } else {
                    root.close();
                    root.byHandRequested();
                }
            }
        }
    }
    OVClipboard {
        id: clipboard
    }
    OVMessageBox {
        id: confirmation

        property string fileName

        function ask(favourite) {
            fileName = favourite.fileName;
            show(qsTr("请确认是否要从收藏夹中删除 %1").arg(favourite.ipport), OVMessageBox.DangerQuestion);
        }

        objectName: "deleteConfirmation"
        okText: qsTr("删除")
        title: qsTr("删除收藏")
        onAccepted: root.remove(fileName)
    }
}
