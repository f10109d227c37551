// The tool bar of the main page: actions on the ticked devices that the filters show, import and adding of devices, and
// the filters. It only requests; the page acts. In a narrow window the filters are in a second line.
import QtQuick
import QtQuick.Layouts
import configtools

Item {
    id: root

    required property bool showInitialised  // state of the filter: initialised devices are shown
    required property bool showUninitialised  // state of the filter: uninitialised devices are shown
    required property bool ipv6  // IPv6 devices are shown: most actions are disabled
    required property DeviceTableModel devices  // the rows of the page, with filters and ticks
    required property int upgradingCount  // number of ticked devices that are being upgraded
    property alias searchText: searchField.text
    property int tipDrop: Theme.toolTipDrop  // further distance in pixels from a button to its tool tip, see OVToolTip
    readonly property bool keyGroup: true  // one stop of the Tab key, see keygroups.js
    signal initialisedToggled(bool shown)  // show or hide the initialised devices
    signal uninitialisedToggled(bool shown)  // show or hide the uninitialised devices
    signal ipv6Chosen(bool ipv6)  // show the IPv6 devices, otherwise the IPv4 devices
    signal initialiseRequested
    signal modifyRequested  // change the addresses
    signal importRequested
    signal exportRequested
    signal deleteRequested  // remove the devices from the list
    signal galleryRequested  // show images of the devices
    signal addIpRequested
    signal addP2pRequested
    signal addFavouriteRequested

    /// Focuses the search field and selects its text.
    function focusSearch() {
        searchField.forceActiveFocus(Qt.ShortcutFocusReason);
        searchField.selectAll();
    }

    /// The filters are in a second line.
    readonly property bool wraps: width < actions.width + filters.spacing + filters.leastWidth
    readonly property int lineHeight: Theme.controlHeight + Theme.unit

    implicitHeight: Theme.toolBarHeight + (wraps ? lineHeight : 0)

    OVActionRow {
        id: actions
        y: (Theme.toolBarHeight - Theme.controlHeight) / 2
        OVButton {
            enabled: !root.ipv6
            kind: OVButton.Primary
            objectName: "initialiseButton"
            text: qsTr("初始化")
            toolTip: qsTr("为勾选的新设备设置第一个密码")
            onClicked: root.initialiseRequested()
        }
        OVButton {
            enabled: !root.ipv6 && root.upgradingCount === 0
            objectName: "batchModifyButton"
            text: qsTr("批量修改IP")
            toolTip: root.upgradingCount > 0 ? qsTr("勾选的设备中有 %n 台正在升级，不能修改IP地址", "", root.upgradingCount)
                : qsTr("为勾选的设备依次分配地址")
            onClicked: root.modifyRequested()
        }
        OVButton {
            enabled: !root.ipv6
            objectName: "importButton"
            text: qsTr("导入")
            toolTip: qsTr("从表格文件读入设备列表")
            onClicked: root.importRequested()
        }
        OVButton {
            enabled: !root.ipv6
            objectName: "exportButton"
            text: qsTr("导出")
            toolTip: qsTr("把勾选的设备写入表格文件")
            onClicked: root.exportRequested()
        }
        OVButton {
            id: addButton
            enabled: !root.ipv6
            objectName: "addButton"
            opensMenu: true
            text: qsTr("手动添加")
            toolTip: qsTr("添加搜索不到的设备：按IP、按P2P或从收藏夹")
            onClicked: addMenu.instance().popup(addButton, 0, addButton.height + Theme.half)

            // qmllint disable unqualified
            OVOnDemand {
                id: addMenu
                visible: false
                sourceComponent: OVMenu {
                    objectName: "addMenu"

                    OVMenuItem {
                        objectName: "addIpItem"
                        text: qsTr("IP设备")
                        onTriggered: root.addIpRequested()
                    }
                    OVMenuItem {
                        objectName: "addP2pItem"
                        text: qsTr("P2P设备")
                        onTriggered: root.addP2pRequested()
                    }
                    OVMenuItem {
                        objectName: "addFavouriteItem"
                        text: qsTr("收藏夹")
                        onTriggered: root.addFavouriteRequested()
                    }
                }
            }
            // qmllint enable unqualified
        }
        OVButton {
            enabled: root.upgradingCount === 0
            kind: OVButton.Danger
            objectName: "deleteButton"
            text: qsTr("删除")
            toolTip: root.upgradingCount > 0 ? qsTr("勾选的设备中有 %n 台正在升级，不能删除", "", root.upgradingCount)
                : qsTr("把勾选的设备从列表中删除")
            onClicked: root.deleteRequested()
        }
        OVIconButton {
            iconName: "snapshots"
            objectName: "galleryButton"
            toolTip: qsTr("查看勾选设备的图像（Ctrl+G）")
            onClicked: root.galleryRequested()
        }
    }

    RowLayout {
        id: filters
        readonly property real leastWidth: implicitWidth - Theme.searchFieldWidth + Theme.searchFieldMinimum

        x: root.wraps ? 0 : actions.width + spacing
        y: actions.y + (root.wraps ? root.lineHeight : 0)
        width: root.width - x
        height: Theme.controlHeight
        spacing: Theme.controlGap

        Item {
            Layout.fillWidth: true
        }
        OVFailedFilter {
            devices: root.devices
        }
        Row {
            spacing: Theme.controlGap

            OVCheckBox {
                checked: root.showInitialised
                objectName: "initialisedBox"
                text: qsTr("已初始化")
                onToggled: root.initialisedToggled(checked)
            }
            OVCheckBox {
                checked: root.showUninitialised
                objectName: "uninitialisedBox"
                text: qsTr("未初始化")
                onToggled: root.uninitialisedToggled(checked)
            }
        }
        OVSegmentedChoice {
            currentIndex: root.ipv6 ? 1 : 0
            options: [{text: qsTr("IPV4"), objectName: "ipv4Choice"}, {text: qsTr("IPV6"), objectName: "ipv6Choice"}]
            onActivated: index => root.ipv6Chosen(index === 1)
        }
        OVTextField {
            id: searchField
            Layout.fillWidth: true
            Layout.maximumWidth: Theme.searchFieldWidth
            Layout.minimumWidth: Theme.searchFieldMinimum
            Layout.preferredWidth: Theme.searchFieldWidth
            clearable: true
            iconName: "search"
            objectName: "searchField"
            placeholderText: qsTr("搜索…")
        }
    }
}
