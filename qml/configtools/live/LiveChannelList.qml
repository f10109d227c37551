// The channels of the watched devices, with marks for channels without a camera or of a device that cannot be watched.
// With several devices, the name of each device is above its first channel. The list only requests changes by its
// signals.
import QtQuick
import QtQuick.Templates as T
import configtools

Rectangle {
    id: root

    /// Array of maps with "name", "connected" (bool: a camera is connected), "ipport", "companion" (the LiveCompanion
    /// of an added device, null for the first device) and "heading" (text above the first channel of a device;
    /// undefined for the others and for a single device).
    required property var channels
    // In the properties and signals below, a channel is an index in `channels`.
    required property var shownChannels  // array: the channel of each cell of the grid, -1 for an empty cell
    required property int currentChannel  // of the current cell, -1 for none
    signal channelClicked(int channel)  // also by Return and the space key
    signal enlargeRequested(int channel)  // by a double click, after channelClicked()
    signal removalRequested(string ipport)  // remove this added device ("address:port"); not for the first device

    color: Theme.colours.surface

    OVLabel {
        id: head
        x: Theme.pageMargin
        width: parent.width - 2 * x
        height: Theme.tableHeadHeight
        color: Theme.colours.sub
        font: Theme.headFont
        //: Heads a list of the channels of a device.
        text: qsTr("通道列表")
    }
    ListView {
        id: list
        y: head.height
        width: parent.width - Theme.line
        height: parent.height - y
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        model: root.channels
        objectName: "liveChannelList"
        onCurrentIndexChanged: positionViewAtIndex(currentIndex, ListView.Contain)

        Accessible.role: Accessible.List
        Accessible.name: head.text

        Keys.onReturnPressed: if (currentItem) root.channelClicked(currentIndex)
        Keys.onSpacePressed: if (currentItem) root.channelClicked(currentIndex)
        Keys.onDeletePressed: {
            if (root.channels[currentIndex]?.companion)
                root.removalRequested(root.channels[currentIndex].ipport);
        }

        T.ScrollBar.vertical: OVScrollBar {}

        // qmllint disable unqualified
        delegate: Item {
            id: entry

            required property int index
            required property var modelData
            readonly property bool shown: root.shownChannels.includes(index)
            readonly property bool failed: (modelData.companion?.failure ?? "") !== "" && !modelData.companion.busy

            width: ListView.view.width
            height: line.y + line.height
            objectName: "liveChannel" + index

            Accessible.role: Accessible.ListItem
            Accessible.name: label.text

            Item {
                id: heading
                width: parent.width
                height: entry.modelData.heading === undefined ? 0 : Theme.controlHeight
                visible: height > 0

                Rectangle {
                    width: parent.width
                    height: Theme.line
                    color: Theme.colours.line
                    visible: entry.index > 0
                }
                OVLabel {
                    x: Theme.pageMargin
                    width: removal.x - x
                    height: parent.height
                    color: Theme.colours.sub
                    font: Theme.headFont
                    objectName: "liveHeading" + entry.index
                    text: entry.modelData.heading ?? ""
                }
                OVIconButton {
                    id: removal
                    x: parent.width - width - Theme.half
                    activeFocusOnTab: false
                    iconName: "close"
                    iconSize: Theme.smallIconSize
                    objectName: "liveRemove" + entry.index
                    toolTip: qsTr("从画面中移除（Delete）")
                    visible: entry.modelData.companion !== null && heading.visible
                    width: visible ? implicitWidth : Theme.unit
                    onClicked: root.removalRequested(entry.modelData.ipport)
                }
            }
            Rectangle {
                id: line
                y: heading.height
                width: parent.width
                height: Theme.controlHeight
                color: entry.index === root.currentChannel ? Theme.colours.rowSelected
                    : pointer.hovered || (entry.ListView.isCurrentItem && list.activeFocus) ? Theme.colours.hover
                    : Theme.colours.clear

                OVIcon {
                    id: sign
                    x: Theme.pageMargin
                    anchors.verticalCenter: parent.verticalCenter
                    color: !entry.modelData.connected || entry.failed ? Theme.colours.faint
                        : entry.shown ? Theme.colours.accent : Theme.colours.sub
                    name: entry.modelData.connected && !entry.failed ? "video" : "noVideo"
                    size: Theme.boxSize
                }
                OVLabel {
                    id: label
                    x: sign.x + sign.width + Theme.unit
                    width: state.x - x - Theme.unit
                    height: parent.height
                    color: entry.modelData.connected ? Theme.colours.text : Theme.colours.faint
                    text: entry.modelData.name
                }
                OVLabel {
                    id: state
                    x: parent.width - width - Theme.pageMargin
                    width: visible ? implicitWidth : 0
                    height: parent.height
                    color: Theme.colours.faint
                    font: Theme.hintFont
                    text: qsTr("未连接")
                    visible: !entry.modelData.connected
                }
                HoverHandler {
                    id: pointer
                }
                MouseArea {
                    anchors.fill: parent
                    onClicked: {
                        list.currentIndex = entry.index;
                        root.channelClicked(entry.index);
                    }
                    onDoubleClicked: root.enlargeRequested(entry.index)
                }
            }
        }
        // qmllint enable unqualified
    }
    Rectangle {
        x: parent.width - width
        width: Theme.line
        height: parent.height
        color: Theme.colours.line
    }
}
