// A notice across the window, with an optional link. The owner shows it, and hides it on closed().
import QtQuick
import configtools

Rectangle {
    id: root

    required property string text
    property string iconName: "unplugged"  // see OVIcon
    property string linkText  // text of the link; no link without a text
    property bool closable: false  // has a close button
    signal linkActivated  // the link was clicked
    signal closed  // by the close button; the banner stays visible

    implicitHeight: Theme.rowHeight
    color: Theme.colours.warnSoft

    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: Theme.line
        color: Theme.colours.warnLine
    }
    OVIcon {
        id: sign
        x: Theme.pageMargin
        anchors.verticalCenter: parent.verticalCenter
        color: Theme.colours.warn
        name: root.iconName
        size: Theme.boxSize
    }
    OVLabel {
        anchors.left: sign.right
        anchors.leftMargin: Theme.unit
        anchors.right: actions.left
        anchors.rightMargin: Theme.pageMargin
        height: parent.height
        color: Theme.colours.warnText
        objectName: "bannerText"
        text: root.text
    }
    Row {
        id: actions
        anchors.right: parent.right
        anchors.rightMargin: root.closable ? Theme.unit : Theme.pageMargin
        height: parent.height
        spacing: Theme.unit

        OVLinkButton {
            anchors.verticalCenter: parent.verticalCenter
            objectName: "bannerLink"
            text: root.linkText
            visible: root.linkText !== ""
            onClicked: root.linkActivated()
        }
        OVIconButton {
            anchors.verticalCenter: parent.verticalCenter
            implicitWidth: Theme.unit * 3
            implicitHeight: Theme.unit * 3
            iconName: "close"
            iconSize: Theme.smallIconSize
            objectName: "bannerCloseButton"
            toolTip: qsTr("关闭")
            visible: root.closable
            onClicked: root.closed()
        }
    }
}
