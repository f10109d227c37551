// Shown in place of the rows of a device table without rows: the reason, and actions. The owner handles the signals.
// Used by all pages with a table.
import QtQuick
import configtools

OVEmptyState {
    id: root

    required property bool searching  // a search runs
    required property bool libraryInstalled  // false: there is no device library, so no device can be reached
    /// Number of devices before the filters, see DeviceTableModel.totalCount. As no row is shown, filters hide all of
    /// them.
    required property int hiddenCount
    required property bool searchesNothing  // the settings of the last search selected no network
    property bool hasReport: false  // a report of the last search can be opened
    property bool helps: false  // also offers the search settings, adding a device and the demo site
    property bool simulated: false  // the application shows the demo site, so it is not offered
    property string searched  // networks of the last search, as text
    signal searchRequested  // start a search
    signal addRequested  // add a device by its address
    signal demoRequested  // open the demo site
    signal settingsRequested  // open the search settings
    signal filtersCleared  // the owner clears its filters and its search text
    signal reportRequested  // open the report of the last search

    /// Why no row is shown: filters hide all devices, a search runs, there is no device library, the search settings
    /// select no network, or the search found no device.
    enum Reason { Hidden, Searching, NoLibrary, NothingToSearch, NothingFound }

    /// A Reason: the first that applies.
    readonly property int reason: hiddenCount > 0 ? ModifyIPEmptyState.Hidden
        : searching ? ModifyIPEmptyState.Searching
        : !libraryInstalled ? ModifyIPEmptyState.NoLibrary
        : searchesNothing ? ModifyIPEmptyState.NothingToSearch : ModifyIPEmptyState.NothingFound
    /// In the order of Reason.
    readonly property var texts: [
        {icon: "filtered", title: qsTr("筛选条件隐藏了全部 %1 台设备").arg(hiddenCount),
            hint: qsTr("放宽筛选条件，或清除搜索文字。"), action: qsTr("清除筛选")},
        {icon: "nothing", title: qsTr("正在搜索设备…"), hint: qsTr("找到的设备会陆续显示在这里。"), action: ""},
        {icon: "unplugged", title: qsTr("未安装设备库"),
            hint: qsTr("程序无法与设备通信，因此找不到设备，也不能修改设备。演示站点不需要设备，可以试用全部功能。"),
            action: helps ? qsTr("打开演示站点") : ""},
        {icon: "nothing", title: qsTr("搜索设置中没有选择网段"),
            hint: qsTr("请在搜索设置中选择本地网段或其他网段。"), action: qsTr("搜索设置")},
        {icon: "nothing", title: qsTr("没有找到设备"),
            hint: (searched === "" ? "" : qsTr("已搜索：%1").arg(searched) + "\n")
                + (helps ? qsTr("请检查网线和网段，或在搜索设置中添加其他网段，然后重新搜索。")
                         : qsTr("请检查网线和网段，然后重新搜索。")), action: qsTr("重新搜索")}
    ]

    busy: reason === ModifyIPEmptyState.Searching
    iconName: texts[reason].icon
    title: texts[reason].title
    hint: texts[reason].hint
    actionText: texts[reason].action
    choices: helps && reason === ModifyIPEmptyState.NothingFound
        ? [{text: qsTr("搜索设置"), objectName: "emptySettingsButton"}, {text: qsTr("按地址添加设备"), objectName: "emptyAddButton"}]
        : []
    demoText: helps && !simulated && reason === ModifyIPEmptyState.NothingFound ? qsTr("打开演示站点") : ""
    linkText: reason === ModifyIPEmptyState.NothingFound && hasReport ? qsTr("为什么没有找到设备？") : ""
    onChosen: choice => {
        if (choice === "emptySettingsButton")
            settingsRequested();
        else
            addRequested();
    }
    onDemoActivated: demoRequested()
    onLinkActivated: reportRequested()
    onActivated: {
        if (reason === ModifyIPEmptyState.Hidden)
            filtersCleared();
        else if (reason === ModifyIPEmptyState.NothingToSearch)
            settingsRequested();
        else if (reason === ModifyIPEmptyState.NoLibrary)
            demoRequested();
        else
            searchRequested();
    }
}
