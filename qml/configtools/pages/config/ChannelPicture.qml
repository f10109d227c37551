// A channel's live picture beside its settings, so that a change is seen at once. The small stream does; a device
// that has none shows the large one.
import QtQuick
import configtools

Item {
    id: root

    required property int channel
    required property string channelName
    required property bool active  // there is a login, and nothing waits for the device

    implicitHeight: Math.round(width * 9 / 16)
    objectName: "channelPicture"

    OV_MediaPlayer {
        id: player
        anchors.fill: parent
        active: root.active
        channel: root.channel
        channelName: root.channelName
        compact: true
        connected: true
        onFailedAgain: mainStream = true
    }
}
