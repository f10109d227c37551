// Announces the page of this tab until its work arrives.
import QtQuick
import configtools

OVComingPage {
    objectName: "pageDeviceConfig"
    iconName: "config"
    title: qsTr("设备配置")
    hint: qsTr("在此查看并修改设备的编码参数和图像参数，旁边是实时预览。") + "\n" + qsTr("修改可以复制到其他设备。")
}
