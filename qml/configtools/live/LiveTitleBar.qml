// The title bar of the live window: which device is watched.
import QtQuick
import configtools

Rectangle {
    id: root

    required property string name
    required property string address
    required property bool maximised
    signal closeRequested
    signal maximiseRequested
    signal dragged

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

    MouseArea {
        property point start
        property bool moving: false

        anchors.fill: parent
        onDoubleClicked: root.maximiseRequested()
        onPressed: mouse => {
            start = Qt.point(mouse.x, mouse.y);
            moving = false;
        }
        onPositionChanged: mouse => {
            if (moving || Math.abs(mouse.x - start.x) + Math.abs(mouse.y - start.y) < Theme.unit)
                return;
            moving = true;
            root.dragged();
        }
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
            fillPressed: Theme.colours.badPressed
            iconName: "close"
            iconSize: Theme.boxSize
            objectName: "liveCloseButton"
            toolTip: qsTr("关闭")
            onClicked: root.closeRequested()
        }
    }
}
