// The title bar of the live window: which device is watched.
import QtQuick
import configtools

Rectangle {
    id: root

    required property string name
    required property string address
    required property bool maximised
    required property var cursor  // its cursorPos() is the pointer's position on the screen
    signal closeRequested
    signal maximiseRequested

    implicitHeight: Theme.tabBarHeight
    color: Theme.colours.bar

    Accessible.role: Accessible.TitleBar
    Accessible.name: name + " " + address

    component BarButton: OVIconButton {
        fillHover: Theme.colours.barHover
        fillPressed: Theme.colours.barPressed
        ink: Theme.colours.barInk
        inkHover: Theme.colours.barInk
    }

    OVTitleDragArea {
        anchors.fill: parent
        cursor: root.cursor
        onMaximiseRequested: root.maximiseRequested()
    }
    Row {
        x: Theme.pageMargin
        width: buttons.x - x - Theme.pageMargin
        height: parent.height
        spacing: Theme.controlGap

        OVIcon {
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.colours.barSub
            name: "video"
        }
        OVLabel {
            width: Math.min(implicitWidth, parent.width / 2)
            height: parent.height
            color: Theme.colours.barInk
            font: Theme.titleFont
            objectName: "liveTitle"
            text: root.name !== "" ? root.name : qsTr("实时画面")
        }
        OVLabel {
            height: parent.height
            color: Theme.colours.barSub
            font: Theme.figureFont
            objectName: "liveAddress"
            text: root.address
        }
    }
    Row {
        id: buttons
        anchors.right: parent.right
        anchors.rightMargin: Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.half

        BarButton {
            iconName: root.maximised ? "restore" : "maximise"
            iconSize: Theme.smallIconSize
            objectName: "liveMaximiseButton"
            toolTip: root.maximised ? qsTr("向下还原") : qsTr("最大化")
            onClicked: root.maximiseRequested()
        }
        BarButton {
            fillHover: Theme.colours.barClose
            fillPressed: Theme.colours.barClosePressed
            iconName: "close"
            iconSize: Theme.boxSize
            objectName: "liveCloseButton"
            toolTip: qsTr("关闭")
            onClicked: root.closeRequested()
        }
    }
}
