// The panels of the system page, in tabs.
import QtQuick
import QtQuick.Templates as T
import configtools

Rectangle {
    id: root

    required property bool available
    required property string unavailableText  // why the ticked devices cannot be used; "" if they can
    required property int upgradingCount  // number of ticked devices that are being upgraded
    required property bool locked  // an operation runs
    required property string timeZone
    required property var deviceFactory
    required property SystemPasswordTime passwordTime
    property int currentPanel: 0

    // Functions of the network library.
    readonly property var functions: deviceFactory.getConfigData("dh", "library", 0)
    property alias clocks: timePanel.clocks
    signal actionRequested(string command, string title, var data)
    signal rebootRequested
    signal resetRequested
    signal passwordCheckRequested(string password)
    signal passwordChangeRequested(string password, int keeping)
    signal refused(string message)

    function clearNewPassword() {
        passwordPanel.clearNewPassword();
    }
    function clearOldPassword() {
        passwordPanel.clearOldPassword();
    }

    border.color: Theme.colours.line
    border.width: Theme.line
    color: Theme.colours.surface
    radius: Theme.paneRadius

    OVTabBar {
        id: tabs
        x: Theme.line
        y: Theme.line
        width: parent.width - 2 * x
        color: Theme.colours.clear
        currentIndex: root.currentPanel
        namePrefix: "systemTab"
        tabs: [qsTr("校时"), qsTr("时区"), qsTr("重启"), qsTr("恢复"), qsTr("密码"), qsTr("视频制式")]
        onActivated: index => root.currentPanel = index
    }

    Flickable {
        id: view
        x: Theme.line
        y: tabs.y + tabs.height
        width: parent.width - 2 * x
        height: parent.height - y - Theme.line
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        contentHeight: stack.height + 2 * Theme.pageMargin
        enabled: !root.locked
        interactive: contentHeight > height

        T.ScrollBar.vertical: OVScrollBar {}

        Item {
            id: stack
            x: Theme.pageMargin + Theme.unit
            y: Theme.pageMargin
            width: Math.min(Theme.panelWidth, view.width - 2 * x)
            height: children[root.currentPanel].height

            SystemTimePanel {
                id: timePanel
                width: stack.width
                available: root.available
                unavailableText: root.unavailableText
                timeZone: root.timeZone
                onActionRequested: (command, title, data) => root.actionRequested(command, title, data)
                onRefused: message => root.refused(message)
                visible: root.currentPanel === 0
            }
            SystemZonePanel {
                width: stack.width
                available: root.available
                unavailableText: root.unavailableText
                deviceFactory: root.deviceFactory
                hasServerDetails: root.functions.timeServerDetails
                timeZone: root.timeZone
                onActionRequested: (command, title, data) => root.actionRequested(command, title, data)
                onRefused: message => root.refused(message)
                visible: root.currentPanel === 1
            }
            SystemRebootPanel {
                width: stack.width
                available: root.available
                unavailableText: root.unavailableText
                hasMaintenance: root.functions.automaticMaintenance
                onActionRequested: (command, title, data) => root.actionRequested(command, title, data)
                upgradingCount: root.upgradingCount
                onRebootRequested: root.rebootRequested()
                onRefused: message => root.refused(message)
                visible: root.currentPanel === 2
            }
            SystemResetPanel {
                width: stack.width
                available: root.available
                unavailableText: root.unavailableText
                upgradingCount: root.upgradingCount
                onResetRequested: root.resetRequested()
                visible: root.currentPanel === 3
            }
            SystemPasswordPanel {
                id: passwordPanel
                width: stack.width
                available: root.available
                unavailableText: root.unavailableText
                deviceFactory: root.deviceFactory
                time: root.passwordTime
                onChangeRequested: (password, keeping) => root.passwordChangeRequested(password, keeping)
                onCheckRequested: password => root.passwordCheckRequested(password)
                onRefused: message => root.refused(message)
                visible: root.currentPanel === 4
            }
            SystemVideoPanel {
                width: stack.width
                available: root.available
                unavailableText: root.unavailableText
                supported: root.functions.videoStandard
                onActionRequested: (command, title, data) => root.actionRequested(command, title, data)
                visible: root.currentPanel === 5
            }
        }
    }
}
