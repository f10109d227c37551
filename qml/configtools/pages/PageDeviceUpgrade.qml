// Announces the page of this tab until its work arrives.
import QtQuick
import configtools

OVComingPage {
    objectName: "pageDeviceUpgrade"
    iconName: "upgrade"
    title: qsTr("设备升级")
    hint: qsTr("在此为选中的设备选择固件并批量升级，每台设备的进度和结果都显示在表中。") + "\n" + qsTr("也可以按升级文档一次升级多台设备。")
}
