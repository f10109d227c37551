// Announces the page of this tab until its work arrives.
import QtQuick
import configtools

OVComingPage {
    id: root

    property bool passwordEditorEnabled: false

    /// The password editor is opened on purpose and closes as soon as the user turns to another tab.
    function disablePasswordEditor() {
        passwordEditorEnabled = false;
    }

    objectName: "pageSystemConfig"
    iconName: "system"
    title: qsTr("系统配置")
    hint: qsTr("在此为多台设备统一校时、设置网络服务和修改密码。") + "\n" + qsTr("也可以重启设备或恢复出厂设置。")
}
