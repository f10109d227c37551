// The favourites: adds them to the device list, one after another with the results as they come, and looks after
// their notes.
import QtQuick
import configtools

OVDialog {
    id: root

    required property DeviceAdding adding
    required property BusyState busyState
    required property Favourites favourites
    signal added  // the device list has changed
    signal said(string message, int kind)
    signal byHandRequested

    property bool running: false
    property bool stopping: false
    property var waiting: []  // identities of the favourites that are still to be added
    property int done: 0
    property int all: 0

    function begin() {
        filter.text = "";
        saved.forgetProgress();
        saved.setAllChecked(false);
        saved.load(favourites.list());
        open();
    }

    /// Closes the window. While devices are added it stops after the one that is under way.
    function reject() {
        if (running) {
            stopping = true;
        } else {
            close();
            rejected();
        }
    }

    function addThese(identities) {
        if (running || identities.length === 0)
            return;
        waiting = identities;
        done = 0;
        all = identities.length;
        stopping = false;
        running = true;
        addNext();
    }

    function addNext() {
        if (stopping || waiting.length === 0) {
            waiting.forEach(identity => saved.setProgress(identity, FavouriteListModel.Failed, qsTr("未执行")));
            running = false;
            return;
        }
        const identity = waiting[0];
        waiting = waiting.slice(1);
        done += 1;
        saved.setProgress(identity, FavouriteListModel.Running, qsTr("正在添加…"));
        table.show(saved.rowOf(identity));
        afterPaint.run(() => {
            addOne(identity);
            addNext();
        });
    }

    function addOne(identity) {
        const code = adding.add(favourites.deviceOf(saved.device(identity)));
        if (code === DeviceAdding.Added) {
            saved.setProgress(identity, FavouriteListModel.Added, qsTr("已添加"));
            added();
        } else {
            saved.setProgress(identity, FavouriteListModel.Failed, adding.errorText(code) || adding.quietText(code));
        }
    }

    function changeNote(identity, note) {
        const device = favourites.deviceOf(saved.device(identity));
        device.note = note;
        const fileName = favourites.save(device);
        if (fileName === "")
            said(qsTr("备注无法保存，请检查程序所在文件夹的写入权限"), OVToast.Error);
        else if (fileName !== identity)
            favourites.remove(identity);  // a file by another name held the device until now
        saved.load(favourites.list());
        table.show(saved.rowOf(fileName));
        table.forceActiveFocus();
    }

    function remove(identity) {
        if (!favourites.remove(identity))
            said(qsTr("收藏无法删除，请检查程序所在文件夹的写入权限"), OVToast.Error);
        saved.load(favourites.list());
    }

    width: Math.min(Theme.favouritesWidth, (parent?.width ?? 0) - 4 * Theme.pageMargin)
    height: Math.min(Theme.favouritesHeight, (parent?.height ?? 0) - 4 * Theme.pageMargin)
    cancelText: running ? qsTr("停止") : qsTr("关闭")
    objectName: "favouritesWindow"
    okEnabled: saved.checkedCount > 0 && !running
    okText: qsTr("添加")
    title: qsTr("收藏夹")
    onAccepted: addThese(saved.checkedIdentities())
    onOpened: filter.forceActiveFocus()

    BusyReport {
        active: root.running
        state: root.busyState
        title: root.title
    }
    FavouriteListModel {
        id: saved
        searchText: filter.text
    }

    footContent: OVFootBar {
        anchors.fill: parent
        progress: root.all > 0 ? (root.done - 1) / root.all : 0
        running: root.running
        runningText: root.stopping ? qsTr("正在停止…") : qsTr("正在添加 %1 / %2").arg(root.done).arg(root.all)
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
        onCopyRequested: row => clipboard.put(saved.textOf(row))
        onDeletionRequested: row => confirmation.ask(saved.get(row))
        onNoteEdited: (row, note) => root.changeNote(saved.get(row).fileName, note)
        onRangeToggled: (first, last, checked) => { if (editable) saved.setRangeChecked(first, last, checked); }
        onRowOpened: row => root.addThese([saved.get(row).fileName])

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
    OVAfterPaint {
        id: afterPaint
    }
    OVMessageBox {
        id: confirmation

        property string fileName

        function ask(favourite) {
            fileName = favourite.fileName;
            show(qsTr("请确认是否要从收藏夹中删除 %1").arg(favourite.ipport), OVMessageBox.DangerQuestion);
        }

        objectName: "deleteConfirmation"
        onAccepted: root.remove(fileName)
    }
}
