// The foot of a page: what is selected on the left and what needs a look, what is running on the right.
import QtQuick
import configtools

Item {
    id: root

    required property string text
    property string warning
    property string runningText
    property string runningDevice
    property bool running: false
    property bool stoppable: false  // by the button, while it is running
    readonly property alias stopButton: stop
    property real progress: -1  // 0 to 1; below 0 there is no known end

    implicitHeight: Theme.footHeight

    Row {
        height: parent.height
        spacing: Theme.pageMargin

        OVLabel {
            id: selected
            height: parent.height
            color: Theme.colours.sub
            objectName: "selectedCount"
            text: root.text
        }
        Row {
            height: parent.height
            spacing: Theme.signGap
            visible: root.warning !== ""

            OVIcon {
                id: sign
                anchors.verticalCenter: parent.verticalCenter
                color: Theme.colours.warn
                name: "alert"
                size: Theme.smallIconSize
            }
            OVLabel {
                readonly property real room: root.width - selected.width - sign.width - Theme.signGap
                    - (work.visible ? work.width + Theme.pageMargin : 0) - Theme.pageMargin
                width: Math.max(0, Math.min(implicitWidth, room))
                height: parent.height
                color: Theme.colours.warnInk
                objectName: "footWarning"
                text: root.warning
            }
        }
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
        OVLinkButton {
            id: stop
            anchors.verticalCenter: parent.verticalCenter
            objectName: "stopButton"
            text: qsTr("停止")
            visible: root.stoppable
        }
    }
}
