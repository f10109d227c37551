// The live view of a channel next to its image settings. It shows the device of the current session of the
// configuration page, so that a written change is visible immediately. Before a stream starts, it checks whether the
// device responds.
import QtQuick
import configtools

Item {
    id: root

    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    required property int channel  // from 0
    required property string channelName
    required property bool active     // the view is shown and the session is logged in; otherwise no stream runs
    required property bool connected  // a camera is connected to the channel

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
