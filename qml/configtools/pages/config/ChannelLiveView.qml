// The live view of a channel next to its settings, which shows changes immediately.
import QtQuick
import configtools

Item {
    id: root

    required property var deviceFactory
    required property int channel
    required property string channelName
    required property bool active     // logged in
    required property bool connected  // a camera is connected

    implicitHeight: Math.round(width * 9 / 16)
    objectName: "channelLiveView"

    OV_MediaPlayer {
        id: player
        anchors.fill: parent
        active: root.active
        channel: root.channel
        channelName: root.channelName
        compact: true
        connected: root.connected
        onCheckRequested: root.deviceFactory.checkSession("dh")
    }
    Connections {
        target: root.deviceFactory

        function onSignalSessionChecked(isReachable) {
            player.takeCheckResult(isReachable);
        }
    }
}
