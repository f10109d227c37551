// What can be done with the ticked devices of the upgrade page.
import QtQuick
import QtQuick.Layouts
import configtools

RowLayout {
    id: root

    required property bool ipv6
    required property int failedCount
    required property FailedMarks marks
    required property bool onlyFailed
    property alias searchText: searchField.text
    readonly property bool keyGroup: true
    signal ipv6Chosen(bool ipv6)
    signal fileRequested
    signal startRequested
    signal onlyFailedToggled(bool only)
    signal retryRequested
    signal documentRequested
    signal templateRequested

    function focusSearch() {
        searchField.forceActiveFocus(Qt.ShortcutFocusReason);
        searchField.selectAll();
    }

    spacing: Theme.pageMargin

    OVActionRow {
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
    Item {
        Layout.fillWidth: true
    }
    OVFailedFilter {
        count: root.failedCount
        marks: root.marks
        on: root.onlyFailed
        onToggled: on => root.onlyFailedToggled(on)
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
