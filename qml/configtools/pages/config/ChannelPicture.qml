// The place of a channel's live picture. It announces the picture, until there is live video.
import QtQuick
import configtools

Rectangle {
    id: root

    required property string channelName

    color: Theme.colours.bar
    height: Math.round(width * 9 / 16)
    objectName: "channelPicture"
    radius: Theme.controlRadius

    OVLabel {
        x: Theme.controlGap
        y: Theme.unit
        width: parent.width - 2 * x
        color: Theme.colours.barInk
        font: Theme.hintFont
        objectName: "channelPictureName"
        text: root.channelName
    }
    Column {
        anchors.centerIn: parent
        spacing: Theme.unit

        OVIcon {
            anchors.horizontalCenter: parent.horizontalCenter
            color: Theme.colours.barSub
            name: "video"
            size: Theme.counterSize
        }
        OVLabel {
            color: Theme.colours.barSub
            font: Theme.hintFont
            text: qsTr("通道的实时画面将显示在这里")
        }
    }
}
