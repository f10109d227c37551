// The snapshot of a channel, or its state or error, with a button to take it again.
import QtQuick
import configtools

Item {
    id: root

    /// Element of Snapshots.results: a map with "state" (a Snapshots.State), "image" (URL), "revision", "name" and
    /// "caption" (name with the device) of the channel, "channel" (from 0) and "message" (error). Null for none.
    required property var entry
    required property bool waits  // snapshots are in progress: the button is disabled
    property bool withDevice: false  // the text below the image includes the device
    readonly property int stage: entry?.state ?? Snapshots.Waiting  // a Snapshots.State
    signal againRequested  // the snapshot is to be taken again

    Rectangle {
        id: frame
        width: parent.width
        height: parent.height - Theme.controlHeight
        color: Theme.colours.videoGround
        clip: true
        radius: Theme.smallRadius

        Image {
            anchors.fill: parent
            asynchronous: true
            cache: false
            fillMode: Image.PreserveAspectFit
            objectName: "snapshotImage"
            source: root.stage === Snapshots.Taken ? root.entry.image + "?" + root.entry.revision : ""
            sourceSize.width: width * 2
            visible: root.stage === Snapshots.Taken

            Accessible.role: Accessible.Graphic
            Accessible.name: root.entry?.name ?? ""
        }
        Column {
            anchors.centerIn: parent
            width: parent.width - 2 * Theme.unit
            spacing: Theme.unit
            visible: root.stage !== Snapshots.Taken

            OVSpinner {
                anchors.horizontalCenter: parent.horizontalCenter
                color: Theme.colours.barSub
                visible: root.stage === Snapshots.Taking
            }
            OVIcon {
                anchors.horizontalCenter: parent.horizontalCenter
                color: Theme.colours.barSub
                name: "noVideo"
                visible: root.stage === Snapshots.Failed
            }
            OVParagraph {
                width: parent.width
                color: Theme.colours.barSub
                font: Theme.hintFont
                horizontalAlignment: Text.AlignHCenter
                objectName: "snapshotMessage"
                text: root.stage === Snapshots.Taking ? qsTr("正在抓图…")
                    : root.stage === Snapshots.Waiting ? qsTr("等待中") : root.entry?.message ?? ""
            }
        }
    }
    OVLabel {
        y: frame.height
        width: parent.width - (again.visible ? again.width + Theme.unit : 0)
        height: Theme.controlHeight
        objectName: "snapshotName"
        text: (root.withDevice ? root.entry?.caption : root.entry?.name) ?? ""
    }
    OVLinkButton {
        id: again
        anchors.right: parent.right
        y: frame.height + (Theme.controlHeight - height) / 2
        enabled: !root.waits
        objectName: "snapshotAgain" + (root.entry?.channel ?? "")
        text: root.stage === Snapshots.Taken ? qsTr("重新抓取") : qsTr("重试")
        visible: root.stage === Snapshots.Failed || root.stage === Snapshots.Taken
        onClicked: root.againRequested()
    }
}
