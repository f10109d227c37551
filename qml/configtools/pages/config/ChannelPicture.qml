// A channel's live picture beside its settings, so that a change is seen at once.
import QtQuick
import configtools

Item {
    id: root

    required property var deviceFactory
    required property int channel
    required property string channelName
    required property bool active     // there is a login
    required property bool connected  // the channel has a camera

    implicitHeight: Math.round(width * 9 / 16)
    objectName: "channelPicture"

    OV_MediaPlayer {
        id: player
        anchors.fill: parent
        active: root.active
        channel: root.channel
        channelName: root.channelName
        compact: true
        connected: root.connected
        onAsked: root.deviceFactory.checkSession("dh")
    }
    Connections {
        target: root.deviceFactory

        function onSignalSessionChecked(answers) {
            player.answer(answers);
        }
    }
}
