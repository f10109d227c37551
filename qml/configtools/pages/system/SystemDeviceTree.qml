// The device tree of the configuration page and of the system page, with a search field and filters. Devices can be
// ticked; on the configuration page one device can also be chosen.
import QtQuick
import configtools

Rectangle {
    id: root

    required property OVTreeModel devices  // owns the ticks; its `shown` is the filter
    /// An object whose function resultText(result, ipport) returns the tool tip for the last result of the device at
    /// `ipport` ("address:port"): a LoginResult, or an OVTreeModel.Result other than NoResult.
    required property var describer
    required property string busyDevice  // "address:port" of a device with a running request; "" for none
    required property bool searching  // a search runs
    required property bool libraryInstalled  // false: there is no device library, so no device can be reached
    property bool locked: false  // an operation runs: the tree is disabled, and the ticks cannot be changed
    property bool choosing: false  // a click on a device chooses it
    property string chosenDevice  // "address:port"; "" for none
    /// Text of the search field without spaces at its ends. The page rebuilds the tree when it changes.
    readonly property string searchText: searchField.text.trim()
    signal searchRequested  // start a device search
    signal deviceChosen(string ipport)  // "address:port"; only if `choosing`, also for the chosen device
    signal detailRequested(string name)  // open the details; name (identity) of the device's row; not if `choosing`
    signal menuRequested(string name, var position)  // name: of the device's row; position: see OVEntryMenu.openAt()

    /// Focuses the search field and selects its text.
    function focusSearch() {
        searchField.forceActiveFocus(Qt.ShortcutFocusReason);
        searchField.selectAll();
    }

    /// Requests the device below the chosen one, also in a later group, by deviceChosen(). Returns false if there is
    /// none.
    function chooseNext() {
        const row = treeRows.deviceAfter(chosenDevice);
        if (row >= 0) {
            tree.moveIntoView(row);
            deviceChosen(treeRows.deviceAt(row));
        }
        return row >= 0;
    }

    border.color: Theme.colours.line
    border.width: Theme.line
    color: Theme.colours.surface
    radius: Theme.paneRadius

    DeviceTreeRows {
        id: treeRows
        tree: root.devices
    }

    // Like a table head, with the check box of all devices.
    Rectangle {
        id: head
        x: Theme.line
        y: Theme.line
        width: parent.width - 2 * x
        height: Theme.tableHeadHeight
        color: Theme.colours.head
        radius: Theme.paneRadius - Theme.line

        Rectangle {  // square lower corners
            y: parent.height - height
            width: parent.width
            height: parent.radius
            color: parent.color
        }
        OVCheckBox {
            id: all
            x: Theme.treeIndent + Theme.unit
            anchors.verticalCenter: parent.verticalCenter
            checkState: root.devices.checkState
            enabled: root.devices.deviceCount > 0 && !root.locked
            nextCheckState: () => checkState
            objectName: "allDevicesBox"
            toolTip: qsTr("全选")
            tristate: true
            onClicked: root.devices.setAllChecked(root.devices.checkState !== Qt.Checked)
        }
        OVLabel {
            id: heading
            anchors.left: all.right
            anchors.leftMargin: Theme.unit
            height: parent.height
            color: Theme.colours.sub
            font: Theme.headFont
            text: qsTr("设备")
        }
        OVLabel {
            anchors.left: heading.right
            anchors.leftMargin: Theme.unit
            height: parent.height
            color: Theme.colours.faint
            font: Theme.figureFont
            text: root.devices.deviceCount
        }
        OVLinkButton {
            anchors.right: parent.right
            anchors.rightMargin: Theme.controlGap
            anchors.verticalCenter: parent.verticalCenter
            enabled: !root.locked
            objectName: "clearMarksButton"
            text: qsTr("清除失败标记")
            toolTip: qsTr("不再标记失败和未执行的设备")
            visible: (root.devices.failedMarks?.count ?? 0) > 0
            onClicked: root.devices.failedMarks.clear()
        }
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: Theme.line
            color: Theme.colours.line
        }
    }
    OVTextField {
        id: searchField
        x: Theme.controlGap
        y: head.y + head.height + Theme.unit
        width: parent.width - 2 * x
        clearable: true
        enabled: !root.locked
        iconName: "search"
        objectName: "treeSearchField"
        placeholderText: qsTr("搜索…")
    }
    SystemTreeStates {
        id: states
        x: Theme.controlGap
        y: searchField.y + searchField.height + Theme.unit
        devices: root.devices
        enabled: !root.locked
        objectName: "treeStates"
        room: parent.width - 2 * x
    }
    OVFailedOperation {
        id: operation
        x: Theme.controlGap
        y: states.y + states.height + Theme.unit
        width: parent.width - 2 * x
        devices: root.devices
        enabled: !root.locked
        visible: root.devices.shown === OVTreeModel.Failed && operations.length > 1
    }
    OVTree {
        id: tree
        x: Theme.line
        y: (operation.visible ? operation.y + operation.height : states.y + states.height) + Theme.unit
        width: parent.width - 2 * x
        height: (unaddressed.visible ? unaddressed.y : parent.height) - y - Theme.controlRadius
        busyDevice: root.busyDevice
        choosing: root.choosing
        chosenDevice: root.chosenDevice
        describer: root.describer
        enabled: !root.locked
        focus: true
        objectName: "deviceTree"
        rows: treeRows
        Accessible.name: heading.text
        onDetailRequested: name => root.detailRequested(name)
        onDeviceChosen: ipport => root.deviceChosen(ipport)
        onMenuRequested: (name, position) => root.menuRequested(name, position)
    }
    OVLabel {
        id: unaddressed
        x: Theme.controlGap
        y: parent.height - height - Theme.half
        width: parent.width - 2 * x
        height: Theme.unit * 3
        color: Theme.colours.sub
        font: Theme.hintFont
        objectName: "unaddressedDevices"
        text: qsTr("%n 台设备没有IP地址（等待DHCP），未列出", "", root.devices.unaddressedCount)
        visible: root.devices.unaddressedCount > 0
    }
    OVFocusRing {
        around: Theme.paneRadius
        shown: tree.activeFocus && !tree.byPointer
    }
    OVEmptyState {
        readonly property bool filtered: root.searchText !== "" || root.devices.shown !== OVTreeModel.All

        anchors.fill: tree
        actionText: root.searchText !== "" ? qsTr("清除搜索") : filtered ? qsTr("显示全部")
            : root.searching || !root.libraryInstalled ? "" : qsTr("重新搜索")
        busy: root.searching && !filtered
        hint: root.searchText !== "" ? qsTr("没有设备的名称、类型、型号或地址包含这些文字。")
            : root.devices.shown === OVTreeModel.Failed ? qsTr("失败和未执行的设备不在此列表中：没有初始化、没有IPv4地址或不再被找到。请查看“修改IP”页和批处理记录。")
            : filtered ? qsTr("列表中的设备都已登录。")
            : root.searching ? qsTr("找到的设备会陆续显示在这里。")
            : !root.libraryInstalled ? qsTr("程序无法与设备通信。可在“修改IP”页打开演示站点。")
            : qsTr("只列出已初始化的IPv4设备。")
        iconName: filtered ? "filtered" : root.libraryInstalled ? "nothing" : "unplugged"
        objectName: "treeEmptyState"
        title: filtered ? qsTr("没有匹配的设备")
            : root.searching ? qsTr("正在搜索设备…")
            : root.libraryInstalled ? qsTr("没有可配置的设备") : qsTr("未安装设备库")
        visible: root.devices.deviceCount === 0
        onActivated: {
            if (root.searchText !== "")
                searchField.wipe();
            else if (filtered)
                root.devices.shown = OVTreeModel.All;
            else
                root.searchRequested();
        }
    }
}
