// A line with the remaining time for the new password or, after its end, the reason of the end. Hidden while the new
// password is being sent, and without a text.
import QtQuick
import configtools

Row {
    id: root

    required property SystemPasswordTime time  // the time in which a new password can be entered
    required property bool keeps     // a typed new password is set aside and will be restored
    required property bool restored  // the password that was set aside is in the fields again

    readonly property bool hurried: time.open && time.secondsLeft <= 15  // 15 seconds or less are left
    readonly property string text: time.changing ? "" : time.open ? remaining : reason
    readonly property string remaining:
        (hurried ? qsTr("只剩 %1 秒，之后需要重新验证旧密码").arg(time.secondsLeft)
                 : qsTr("%1 秒后失效").arg(time.secondsLeft))
        + " · " + qsTr("%n 台设备等待新密码", "", time.devices.length)
        + (restored ? " · " + qsTr("已恢复之前输入的新密码") : "")
    /// Why the time has ended; "" after a regular end, and after OtherWork, which the page notifies.
    readonly property string reason: {
        const next = qsTr("请重新验证旧密码。") + (keeps ? qsTr("已输入的新密码届时会恢复。") : "");
        switch (time.ending) {
        case SystemPasswordTime.TimeOver:
            return qsTr("时间已到，%n 台设备的密码没有修改。", "", time.leftCount) + next;
        case SystemPasswordTime.OtherTicks:
            return qsTr("勾选的设备已改变。") + next;
        default:
            return "";
        }
    }

    spacing: Theme.signGap
    visible: text !== ""

    OVIcon {
        id: sign
        y: Math.round((messageLabel.lineHeight - height) / 2)
        color: root.hurried ? Theme.colours.bad : Theme.colours.warn
        name: "alert"
        size: Theme.smallIconSize
        visible: root.hurried || !root.time.open
    }
    OVParagraph {
        id: messageLabel
        width: root.width - (sign.visible ? sign.width + root.spacing : 0)
        color: root.hurried ? Theme.colours.bad : root.time.open ? Theme.colours.sub : Theme.colours.warnText
        objectName: "countdownText"
        text: root.text
    }
}
