// The channels of the watched device. Those that no camera is connected to are marked.
import QtQuick
import QtQuick.Templates as T
import configtools

Rectangle {
    id: root

    required property var channels
    required property var shownChannels  // numbers of the channels that have a place in the grid
    required property int currentChannel
    signal picked(int channel)
    signal enlargeRequested(int channel)

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

        Keys.onReturnPressed: if (currentItem) root.picked(currentIndex)
        Keys.onSpacePressed: if (currentItem) root.picked(currentIndex)

        T.ScrollBar.vertical: OVScrollBar {}

        // qmllint disable unqualified
        delegate: Rectangle {
            id: entry

            required property int index
            required property var modelData
            readonly property bool shown: root.shownChannels.includes(modelData.channel)

            width: ListView.view.width
            height: Theme.controlHeight
            color: modelData.channel === root.currentChannel ? Theme.colours.rowSelected
                : pointer.hovered || (ListView.isCurrentItem && list.activeFocus) ? Theme.colours.hover
                : Theme.colours.clear
            objectName: "liveChannel" + modelData.channel

            Accessible.role: Accessible.ListItem
            Accessible.name: label.text

            OVIcon {
                id: sign
                x: Theme.pageMargin
                anchors.verticalCenter: parent.verticalCenter
                color: !entry.modelData.connected ? Theme.colours.faint
                    : entry.shown ? Theme.colours.accent : Theme.colours.sub
                name: entry.modelData.connected ? "video" : "noVideo"
                size: Theme.boxSize
            }
            OVLabel {
                id: label
                x: sign.x + sign.width + Theme.unit
                width: state.x - x - Theme.unit
                height: parent.height
                color: entry.modelData.connected ? Theme.colours.ink : Theme.colours.faint
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
                    root.picked(entry.modelData.channel);
                }
                onDoubleClicked: root.enlargeRequested(entry.modelData.channel)
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
