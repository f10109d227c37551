// Announces the page of this tab until its work arrives.
import QtQuick
import configtools

OVComingPage {
    objectName: "pageCGIConfig"
    iconName: "cgi"
    title: qsTr("CGI协议")
    hint: qsTr("在此向多台设备批量发送CGI命令，并逐台查看设备的回应。") + "\n" + qsTr("常用命令可以保存为模板。")
}
