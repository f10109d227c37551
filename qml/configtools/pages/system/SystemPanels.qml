// The tabs with the commands of the system page. They only request; the page confirms and starts the command for the
// ticked devices.
import QtQuick
import QtQuick.Templates as T
import configtools

Rectangle {
    id: root

    required property bool available  // devices are ticked and no batch runs
    required property string unavailableText  // why no command can start, for tool tips; "" if `available`
    required property int upgradingCount  // number of ticked devices that are being upgraded
    required property bool locked  // a command runs: the panels are disabled; another tab can be selected
    required property string timeZone  // of this computer, as "UTC+08:00" or "UTC-5:00"
    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    required property SystemPasswordTime passwordTime  // the time in which a new password can be entered
    property int currentPanel: 0  // tab: 0 time, 1 time zone, 2 reboot, 3 reset, 4 password, 5 video standard

    /// Functions of the network library, as a map of bool: "timeServerDetails", "automaticMaintenance" and
    /// "videoStandard" are used here.
    readonly property var functions: deviceFactory.getConfigData("dh", "library", 0)
    property alias clocks: timePanel.clocks  // times of devices, see SystemTimePanel
    /// Run a command, such as "ntpConfig". `data`: its parameters, a map; the panel that emits the signal shows its
    /// keys. `title`: name for the user.
    signal actionRequested(string command, string title, var data)
    signal rebootRequested  // reboot the devices now
    signal resetRequested  // reset the devices to factory settings
    signal passwordCheckRequested(string password)  // check the old password
    /// Set the new password; keeping: an AccountList.Keeping.
    signal passwordChangeRequested(string password, int keeping)
    signal refused(string message)  // the input is invalid; nothing was requested

    /// Clears the new password, also the one that is set aside.
    function clearNewPassword() {
        passwordPanel.clearNewPassword();
    }
    /// Clears the old password.
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
