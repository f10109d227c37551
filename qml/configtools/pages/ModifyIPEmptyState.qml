// Why the table of the main page is empty, and what to do.
import QtQuick
import configtools

OVEmptyState {
    id: root

    required property bool searching
    required property bool libraryInstalled
    required property int hiddenCount  // devices that the filters leave out
    required property bool searchesNothing  // the search settings name nothing to search
    property bool hasReport: false  // of the last search, offered by the page
    signal searchRequested
    signal settingsRequested
    signal filtersCleared
    signal reportRequested

    enum Reason { Hidden, Searching, NoLibrary, NothingToSearch, NothingFound }

    readonly property int reason: hiddenCount > 0 ? ModifyIPEmptyState.Hidden
        : searching ? ModifyIPEmptyState.Searching
        : !libraryInstalled ? ModifyIPEmptyState.NoLibrary
        : searchesNothing ? ModifyIPEmptyState.NothingToSearch : ModifyIPEmptyState.NothingFound
    readonly property var texts: [
        {icon: "filtered", title: qsTr("筛选条件隐藏了全部 %1 台设备").arg(hiddenCount),
            hint: qsTr("放宽筛选条件，或清除搜索文字。"), action: qsTr("清除筛选")},
        {icon: "nothing", title: qsTr("正在搜索设备…"), hint: qsTr("找到的设备会陆续显示在这里。"), action: ""},
        {icon: "unplugged", title: qsTr("未安装设备库"), hint: qsTr("以 --demo 参数启动可演示模拟站点。"), action: ""},
        {icon: "nothing", title: qsTr("搜索设置中没有选择网段"),
            hint: qsTr("请在搜索设置中选择本地网段或其他网段。"), action: qsTr("搜索设置")},
        {icon: "nothing", title: qsTr("没有找到设备"),
            hint: qsTr("请检查网线和网段，或在搜索设置中添加其他网段，然后重新搜索。"), action: qsTr("重新搜索")}
    ]

    busy: reason === ModifyIPEmptyState.Searching
    iconName: texts[reason].icon
    title: texts[reason].title
    hint: texts[reason].hint
    actionText: texts[reason].action
    linkText: reason === ModifyIPEmptyState.NothingFound && hasReport ? qsTr("为什么没有找到设备？") : ""
    onLinkActivated: reportRequested()
    onActivated: {
        if (reason === ModifyIPEmptyState.Hidden)
            filtersCleared();
        else if (reason === ModifyIPEmptyState.NothingToSearch)
            settingsRequested();
        else
            searchRequested();
    }
}
