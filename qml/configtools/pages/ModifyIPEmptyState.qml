// Why the table of the main page is empty, and what to do.
import QtQuick
import configtools

OVEmptyState {
    id: root

    required property bool searching
    required property bool libraryInstalled
    required property int hiddenCount  // devices that the filters leave out
    signal searchRequested
    signal filtersCleared

    readonly property bool hidden: hiddenCount > 0

    busy: !hidden && searching
    iconName: hidden ? "filtered" : libraryInstalled ? "nothing" : "unplugged"
    title: hidden ? qsTr("筛选条件隐藏了全部 %1 台设备").arg(hiddenCount)
        : searching ? qsTr("正在搜索设备…")
        : libraryInstalled ? qsTr("没有找到设备") : qsTr("未安装设备库")
    hint: hidden ? qsTr("放宽筛选条件，或清除搜索文字。")
        : searching ? qsTr("找到的设备会陆续显示在这里。")
        : libraryInstalled ? qsTr("请检查网线和网段，或在搜索设置中添加其他网段，然后重新搜索。")
        : qsTr("以 --demo 参数启动可演示模拟站点。")
    actionText: hidden ? qsTr("清除筛选") : searching || !libraryInstalled ? "" : qsTr("重新搜索")
    onActivated: hidden ? filtersCleared() : searchRequested()
}
