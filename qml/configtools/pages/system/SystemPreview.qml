// Asks before a command changes devices, with a list of what it does to which of them.
import QtQuick
import configtools

Item {
    id: root

    required property var deviceFactory
    readonly property SystemLists lists: SystemLists {}

    // They change nothing: these commands are sent at once.
    readonly property var harmless: ["readTime", "loginCheck"]

    /// What a command does to a device.
    function happens(command, title, data) {
        switch (command) {
        case "dstConfig":
            return data.dstEnable ? qsTr("启用夏令时") : qsTr("停用夏令时");
        case "ntpConfig":
            return SystemTools.timeZones[data.timeZone] + qsTr("，") + (data.ntpSet ? "NTP " + data.ntpServer
                                                                                     : qsTr("停用NTP"));
        case "setTimeByManual":
            return title + " " + data.time;
        case "autoMaintain":
            //: When a device reboots: a day of the week or every day, and a time.
            return data.autoReboot ? qsTr("%1 %2 重启").arg(lists.maintenanceDays[data.week]).arg(data.time)
                                   : qsTr("停用定时重启");
        case "videoStandard":
            return title + " " + (data.videoStandard === 1 ? "PAL" : "NTSC");
        default:
            return title;
        }
    }

    /// Calls `send` with the devices that are to get the command, and with those that the user has taken out: at once
    /// when it needs no question.
    function ask(command, title, data, ipports, send) {
        if (harmless.includes(command)) {
            send(ipports, []);
            return;
        }
        const what = happens(command, title, data);
        if (command === "rebootDevice")
            dialog.wanted().ask(qsTr("确定要重启选中的 %n 台设备吗？", "", ipports.length), what, ipports,
                                {title: title, okText: qsTr("重启"), danger: true, action: send});
        else if (command === "ntpConfig" && data.ntpSet && data.updatePeriod === 0)
            dialog.wanted().ask(qsTr("更新周期为 0 分钟，设备可能不再校时。仍要应用到选中的 %n 台设备吗？", "", ipports.length), what,
                                ipports, {title: title, okText: qsTr("仍然应用"), danger: true, action: send});
        else if (command === "resetSystem")
            dialog.wanted().ask(qsTr("确定要将选中的 %n 台设备恢复出厂设置吗？", "", ipports.length), what, ipports,
                                {title: title, okText: title, danger: true, action: send});
        else
            dialog.wanted().ask(qsTr("将对下列设备执行“%1”：").arg(title), what, ipports,
                                {title: title, okText: qsTr("执行"), listed: true, quick: true, subject: command, action: send});
    }

    /// Closes the question about a command whose time is over.
    function withdraw(command) {
        dialog.item?.withdraw(command);
    }

    visible: false

    // qmllint disable unqualified
    OVOnDemand {
        id: dialog
        visible: false
        sourceComponent: BatchPreviewDialog {
            deviceFactory: root.deviceFactory
        }
    }
    // qmllint enable unqualified
}
