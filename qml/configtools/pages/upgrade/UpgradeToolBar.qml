// The tool bar of the upgrade page: actions on the ticked devices that the filters show, the number of concurrent
// upgrades, and the filters. It only requests; the page acts. In a narrow window the filters are in a second line.
import QtQuick
import QtQuick.Layouts
import configtools

Item {
    id: root

    required property bool ipv6  // IPv6 devices are shown
    required property DeviceTableModel devices  // the rows of the page, with filters and ticks
    required property int parallelUpgrades  // chosen number of concurrent upgrades, from 1
    property alias searchText: searchField.text
    readonly property bool keyGroup: true  // one stop of the Tab key, see keygroups.js
    signal ipv6Chosen(bool ipv6)  // show the IPv6 devices, otherwise the IPv4 devices
    signal fileRequested  // choose one firmware file for the ticked devices
    signal startRequested  // upgrade the ticked devices
    signal retryRequested  // retry failed upgrades of all devices
    signal documentRequested  // upgrade the devices of a document
    signal templateRequested  // open the template of documents
    signal parallelUpgradesChosen(int count)  // 1 to `maximumUpgrades`

    /// Focuses the search field and selects its text.
    function focusSearch() {
        searchField.forceActiveFocus(Qt.ShortcutFocusReason);
        searchField.selectAll();
    }

    readonly property int maximumUpgrades: 16  // at the same time
    /// The filters are in a second line.
    readonly property bool wraps: width < actions.width + filters.spacing + filters.leastWidth
    readonly property int lineHeight: Theme.controlHeight + Theme.unit

    implicitHeight: Theme.toolBarHeight + (wraps ? lineHeight : 0)

    OVActionRow {
        id: actions
        y: (Theme.toolBarHeight - Theme.controlHeight) / 2
        OVButton {
            kind: OVButton.Primary
            objectName: "upgradeStartButton"
            text: qsTr("开始升级")
            toolTip: qsTr("升级勾选的设备")
            onClicked: root.startRequested()
        }
        OVButton {
            objectName: "upgradeFileButton"
            text: qsTr("选择文件")
            toolTip: qsTr("为勾选的设备选择同一个升级文件")
            onClicked: root.fileRequested()
        }
        OVButton {
            objectName: "upgradeRetryButton"
            text: qsTr("重试失败项")
            toolTip: qsTr("再次升级重试可能成功的设备，例如无应答的设备")
            onClicked: root.retryRequested()
        }
        OVButton {
            objectName: "upgradeDocumentButton"
            text: qsTr("升级文档")
            toolTip: qsTr("按表格文件升级其中的设备，并把结果写回文件")
            onClicked: root.documentRequested()
        }
        OVButton {
            objectName: "upgradeTemplateButton"
            text: qsTr("打开模板")
            toolTip: qsTr("打开升级文档的模板文件")
            onClicked: root.templateRequested()
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
        Row {
            spacing: Theme.unit

            OVLabel {
                height: parent.height
                color: Theme.colours.sub
                //: Followed by a number of devices.
                text: qsTr("同时升级")
            }
            OVComboBox {
                width: Theme.hourFieldWidth
                accessibleName: qsTr("同时升级的设备数")
                currentIndex: root.parallelUpgrades - 1
                font: Theme.figureFont
                model: Array.from({length: root.maximumUpgrades}, (value, index) => index + 1)
                objectName: "parallelUpgradesBox"
                onActivated: index => root.parallelUpgradesChosen(index + 1)
            }
        }
        OVFailedFilter {
            devices: root.devices
        }
        OVSegmentedChoice {
            currentIndex: root.ipv6 ? 1 : 0
            options: [{text: qsTr("IPV4"), objectName: "upgradeIpv4Choice"}, {text: qsTr("IPV6"), objectName: "upgradeIpv6Choice"}]
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
            objectName: "upgradeSearchField"
            placeholderText: qsTr("搜索...")
        }
    }
}
