// Asks for a restart after a change of language. The change is stored already; after "cancel" it applies at the next
// start.
import QtQuick
import configtools

OVDialog {
    id: root

    signal restartRequested

    wantedWidth: Theme.restartWidth
    leastHeight: Theme.restartHeight
    objectName: "restartDialog"
    cancelText: qsTr("取消")
    okText: qsTr("重启")
    title: qsTr("提示")
    onAccepted: {
        close();
        restartRequested();
    }

    OVNotice {
        width: parent.width
        iconName: "language"
        text: qsTr("语言变更需要重新启动程序才能生效！")
    }
}
