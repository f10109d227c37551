// The title bar of the live window, also of the gallery: a name, an address and, with a `position`, buttons for the
// previous and the next device. The buttons and a double click only emit signals.
import QtQuick
import configtools

Rectangle {
    id: root

    required property string name  // of the device or the window; a default text for ""
    required property string address  // text after the name
    required property bool maximised
    required property var cursor  // a CLocalConfig; its cursorPos() returns the pointer's screen position
    property string position                 // position in the list, such as "2 / 5"; "" hides these buttons
    property bool hasEarlier: false  // the button for the previous device is enabled
    property bool hasLater: false  // the button for the next device is enabled
    signal earlierRequested  // show the previous device
    signal laterRequested  // show the next device
    signal closeRequested
    signal maximiseRequested  // or restore, if `maximised`

    implicitHeight: Theme.tabBarHeight
    color: Theme.colours.bar

    Accessible.role: Accessible.TitleBar
    Accessible.name: name + " " + address

    component BarButton: OVIconButton {
        fillHover: Theme.colours.barHover
        fillPressed: Theme.colours.barPressed
        iconColor: Theme.colours.barText
        iconDisabledColor: Theme.colours.barLine
        iconHoverColor: Theme.colours.barText
    }

    OVTitleDragArea {
        anchors.fill: parent
        cursor: root.cursor
        onMaximiseRequested: root.maximiseRequested()
    }
    Row {
        x: Theme.pageMargin
        width: (way.visible ? way.x : buttons.x) - x - Theme.pageMargin
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
            color: Theme.colours.barText
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
    OVActionRow {
        id: way
        anchors.right: buttons.left
        anchors.rightMargin: Theme.pageMargin
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.half
        visible: root.position !== ""

        BarButton {
            enabled: root.hasEarlier
            iconName: "left"
            objectName: "liveEarlierButton"
            toolTip: qsTr("上一台设备（PgUp）")
            onClicked: root.earlierRequested()
        }
        OVLabel {
            height: Theme.controlHeight
            color: Theme.colours.barSub
            font: Theme.figureFont
            objectName: "liveDevicePosition"
            text: root.position
        }
        BarButton {
            enabled: root.hasLater
            iconName: "right"
            objectName: "liveLaterButton"
            toolTip: qsTr("下一台设备（PgDn）")
            onClicked: root.laterRequested()
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
