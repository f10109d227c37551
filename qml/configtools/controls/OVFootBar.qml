// The foot of a page: what is selected on the left, what is running on the right.
import QtQuick
import configtools

Item {
    id: root

    required property string text
    property string runningText
    property string runningDevice
    property bool running: false
    property real progress: -1  // 0 to 1; below 0 there is no known end

    implicitHeight: Theme.footHeight

    OVLabel {
        anchors.left: parent.left
        height: parent.height
        width: Math.min(implicitWidth, parent.width - work.width - Theme.pageMargin)
        color: Theme.colours.sub
        objectName: "selectedCount"
        text: root.text
    }
    Row {
        id: work
        anchors.right: parent.right
        height: parent.height
        spacing: Theme.pageMargin
        visible: root.running

        OVLabel {
            height: parent.height
            color: Theme.colours.sub
            objectName: "runningText"
            text: root.runningText
        }
        OVProgressBar {
            anchors.verticalCenter: parent.verticalCenter
            indeterminate: root.progress < 0
            value: Math.max(0, root.progress)
        }
        OVLabel {
            height: parent.height
            color: Theme.colours.sub
            font: Theme.figureFont
            text: root.runningDevice
            visible: text !== ""
        }
    }
}
