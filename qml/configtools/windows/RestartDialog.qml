// Asks for the restart that a change of language needs.
import QtQuick
import configtools

OVDialog {
    id: root

    signal restartRequested

    width: 480
    height: 200
    objectName: "restartDialog"
    okText: qsTr("重启")
    title: qsTr("提示")
    onAccepted: {
        close();
        restartRequested();
    }

    Row {
        width: parent.width
        spacing: 12

        OVIcon {
            id: sign
            y: 1
            color: Theme.colours.accent
            name: "language"
        }
        OVParagraph {
            width: parent.width - sign.width - parent.spacing
            text: qsTr("语言变更需要重新启动程序才能生效！")
        }
    }
}
