// Confirms a command of the system page, with a list of the devices and their changes.
import QtQuick
import configtools

Item {
    id: root

    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    readonly property SystemLists lists: SystemLists {}

    /// Commands that change nothing: they need no confirmation.
    readonly property var harmless: ["readTime", "loginCheck"]

    /// The change by a command, as a text for the user; the `title` for a command without details. Parameters: see
    /// SystemBatch.run().
    function actionText(command, title, data) {
        switch (command) {
        case "dstConfig":
            return data.dstEnable ? qsTr("启用夏令时") : qsTr("停用夏令时");
        case "ntpConfig":
            return SystemTools.timeZones[data.timeZone] + qsTr("，") + (data.ntpSet ? "NTP " + data.ntpServer
                                                                                     : qsTr("停用NTP"));
        case "setTimeByManual":
            return title + " " + data.time;
        case "autoMaintain":
            //: Time of a reboot: a day of the week or every day, and a time.
            return data.autoReboot ? qsTr("%1 %2 重启").arg(lists.maintenanceDays[data.week]).arg(data.time)
                                   : qsTr("停用定时重启");
        case "videoStandard":
            return title + " " + (data.videoStandard === 1 ? "PAL" : "NTSC");
        default:
            return title;
        }
    }

    /// Asks the user, then calls `send` with two lists of "address:port": the ticked devices and the unticked ones.
    /// Calls it immediately if no confirmation is needed, and not at all if the user cancels. Other parameters: see
    /// SystemBatch.run().
    function ask(command, title, data, ipports, send) {
        if (harmless.includes(command)) {
            send(ipports, []);
            return;
        }
        const text = actionText(command, title, data);
        if (command === "rebootDevice")
            dialog.instance().ask(qsTr("确定要重启选中的 %n 台设备吗？", "", ipports.length), text, ipports,
                                {title: title, okText: qsTr("重启"), danger: true, action: send});
        else if (command === "ntpConfig" && data.ntpSet && data.updatePeriod === 0)
            dialog.instance().ask(qsTr("更新周期为 0 分钟，设备可能不再校时。仍要应用到选中的 %n 台设备吗？", "", ipports.length), text,
                                ipports, {title: title, okText: qsTr("仍然应用"), danger: true, action: send});
        else if (command === "resetSystem")
            dialog.instance().ask(qsTr("确定要将选中的 %n 台设备恢复出厂设置吗？", "", ipports.length), text, ipports,
                                {title: title, okText: title, danger: true, action: send});
        else
            dialog.instance().ask(qsTr("将对下列设备执行“%1”：").arg(title), text, ipports,
                                {title: title, okText: qsTr("执行"), listed: true, quick: true, subject: command, action: send});
    }

    /// Closes the open confirmation of this command, which is no longer possible.
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
