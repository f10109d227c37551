// A line with the device of the session (address, name, model, type) and the state of its login.
import QtQuick
import configtools

Item {
    id: root

    required property ConfigSession session  // the login to the device, and the settings that were read
    readonly property string message: {
        if (session.device === "")
            return qsTr("未选择设备");
        if (session.busy)
            return session.busyText;
        if (session.taken)
            return qsTr("未登录");
        if (session.lost)
            return qsTr("连接已断开");
        if (session.loggedIn && session.upgrading)
            return qsTr("正在升级");
        return session.loggedIn ? qsTr("已登录") : qsTr("登录失败：%1").arg(session.failure);
    }
    readonly property string details: Array.from([session.device, session.name, session.model, session.type])
        .filter(text => text !== "").join(" · ")

    implicitHeight: Theme.controlHeight

    Row {
        anchors.right: parent.right
        height: parent.height
        spacing: Theme.unit

        OVLabel {
            width: Math.min(implicitWidth, root.width - state.width - parent.spacing)
            height: parent.height
            color: Theme.colours.sub
            font: Theme.figureFont
            objectName: "configDevice"
            text: root.details
            visible: text !== "" && root.width - state.width - parent.spacing > Theme.columnNumber
        }
        Row {
            id: state
            height: parent.height
            spacing: Theme.signGap

            OVSpinner {
                anchors.verticalCenter: parent.verticalCenter
                running: root.session.busy
                size: Theme.smallIconSize
                visible: root.session.busy
            }
            OVIcon {
                anchors.verticalCenter: parent.verticalCenter
                color: root.session.loggedIn ? Theme.colours.ok : Theme.colours.bad
                name: root.session.loggedIn ? "ok" : "error"
                size: Theme.smallIconSize
                visible: root.session.device !== "" && !root.session.busy
            }
            OVLabel {
                width: Math.min(implicitWidth, root.width - Theme.smallIconSize - parent.spacing)
                height: root.height
                color: root.session.device !== "" && !root.session.busy && !root.session.loggedIn
                    ? Theme.colours.bad : Theme.colours.sub
                objectName: "configState"
                text: root.message
            }
        }
    }
}
