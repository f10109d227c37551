// The main page: the devices that a search found, and what can be done with them.
import QtQuick
import configtools

FocusScope {
    id: page

    required property bool searching
    required property bool libraryInstalled
    signal searchRequested

    readonly property var deviceFactory: CDeviceFactoryApi // qmllint disable unqualified

    function focusSearch() {
        toolBar.focusSearch();
    }

    function clearFilters() {
        devices.showInitialised = true;
        devices.showUninitialised = true;
        toolBar.searchText = "";
    }

    function nameOfResult(code) {
        const name = deviceFactory.getErrorName(code);
        return name === "" && code === -1 ? qsTr("尚未修改") : name;
    }

    objectName: "pageModifyIP"

    DeviceTableModel {
        id: devices
        deviceFactory: page.deviceFactory
        searchText: toolBar.searchText
    }

    Connections {
        target: page.deviceFactory

        function onSignalAddDeviceToTable() {
            devices.refresh();
        }
        function onSignalAddSingleDeviceToTable() {
            devices.refresh();
        }
        function onSignalSearchDone() {
            devices.refresh();
        }
    }

    OVClipboard {
        id: clipboard
    }

    ModifyIPToolBar {
        id: toolBar
        x: Theme.pageMargin
        width: parent.width - 2 * Theme.pageMargin
        height: Theme.toolBarHeight
        ipv6: devices.ipv6
        showInitialised: devices.showInitialised
        showUninitialised: devices.showUninitialised
        onInitialisedToggled: shown => devices.showInitialised = shown
        onIpv6Chosen: ipv6 => devices.ipv6 = ipv6
        onUninitialisedToggled: shown => devices.showUninitialised = shown
    }

    OVTable {
        id: table
        x: Theme.pageMargin
        y: toolBar.height
        width: parent.width - 2 * Theme.pageMargin
        height: foot.y - y
        checkState: devices.checkState
        focus: true
        model: devices
        objectName: "deviceTable"
        sortKey: devices.sortKey
        sortOrder: devices.sortOrder
        columns: [
            {key: "num", title: qsTr("No."), width: 56, cell: numberCell},
            {key: "state", title: qsTr("状态"), width: 104, minimumWidth: 32, sortable: true, cell: stateCell},
            {key: "name", title: qsTr("名称"), width: 146, stretch: 2, sortable: true},
            {key: "type", title: qsTr("类型"), width: 68, sortable: true},
            {key: "model", title: qsTr("型号"), width: 130, stretch: 2, sortable: true},
            {key: "ipport", title: qsTr("IP:端口"), width: devices.ipv6 ? 242 : 172, sortable: true, cell: addressCell},
            {key: "mac", title: "MAC", width: devices.ipv6 ? 76 : 146, sortable: true, cell: quietFigureCell},
            {key: "vision", title: qsTr("版本号"), width: 114, stretch: 1, sortable: true, cell: figureCell},
            {key: "res", title: qsTr("修改结果"), width: 92, sortable: true, cell: resultCell},
            {key: "operate", title: qsTr("操作"), width: 168, cell: actionCell}
        ]
        onAllToggled: checked => devices.setAllChecked(checked)
        onCopyRequested: row => clipboard.put(devices.textOf([row]))
        onRangeToggled: (first, last, checked) => devices.setRangeChecked(first, last, checked)
        onSortRequested: key => devices.toggleSort(key)

        ModifyIPEmptyState {
            anchors.fill: parent
            hiddenCount: devices.totalCount
            libraryInstalled: page.libraryInstalled
            searching: page.searching
            onFiltersCleared: page.clearFilters()
            onSearchRequested: page.searchRequested()
        }
    }

    OVFootBar {
        id: foot
        x: Theme.pageMargin
        y: parent.height - height
        width: parent.width - 2 * Theme.pageMargin
        running: page.searching
        runningText: qsTr("正在搜索设备…")
        //: Follows a number at the foot of a page, as in "3 devices selected".
        text: devices.checkedCount + " " + qsTr("台设备已选中", "", devices.checkedCount)
    }

    Component {
        id: numberCell
        OVTableTextCell {
            font: Theme.figureFont
            text: rowIndex + 1
        }
    }

    Component {
        id: figureCell
        OVTableTextCell {
            font: Theme.figureFont
        }
    }

    Component {
        id: quietFigureCell
        OVTableTextCell {
            color: Theme.colours.sub
            font: Theme.figureFont
        }
    }

    Component {
        id: stateCell
        OVTableCell {
            id: state

            Rectangle {
                id: dot
                anchors.verticalCenter: parent.verticalCenter
                width: Theme.unit
                height: Theme.unit
                color: state.value ? Theme.colours.ok : Theme.colours.warn
                radius: Theme.half
            }
            OVLabel {
                anchors.left: dot.right
                anchors.leftMargin: 6
                anchors.right: parent.right
                anchors.rightMargin: Theme.half
                height: parent.height
                text: state.value ? qsTr("已初始化") : qsTr("未初始化")
            }
        }
    }

    Component {
        id: addressCell
        OVTableCell {
            id: address

            OVLabel {
                id: addressText
                width: Math.min(implicitWidth, parent.width - Theme.unit - (sign.visible ? 20 : 0))
                height: parent.height
                font: Theme.figureFont
                text: address.value ?? ""
            }
            OVIcon {
                id: sign
                anchors.left: addressText.right
                anchors.leftMargin: 6
                anchors.verticalCenter: parent.verticalCenter
                color: Theme.colours.bad
                name: "alert"
                size: Theme.smallIconSize
                visible: address.conflict

                HoverHandler {
                    id: signPointer
                }
                OVToolTip {
                    shown: signPointer.hovered
                    text: qsTr("IP地址冲突")
                }
            }
        }
    }

    // qmllint disable unqualified
    Component {
        id: resultCell
        OVTableCell {
            id: result

            OVIcon {
                x: 16
                anchors.verticalCenter: parent.verticalCenter
                color: result.value === 0 ? Theme.colours.ok
                    : (result.value ?? -1) === -1 ? Theme.colours.faint : Theme.colours.warn
                name: result.value === 0 ? "ok" : (result.value ?? -1) === -1 ? "unknown" : "alert"
                size: Theme.boxSize

                HoverHandler {
                    id: resultPointer
                }
                OVToolTip {
                    shown: resultPointer.hovered
                    text: resultPointer.hovered ? page.nameOfResult(result.value ?? -1) : ""
                }
            }
        }
    }
    // qmllint enable unqualified

    Component {
        id: actionCell
        ModifyIPActions {}
    }
}
