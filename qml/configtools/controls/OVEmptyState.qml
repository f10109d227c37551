// Shown in place of an empty list: icon, reason (title), hint, and optional buttons and links. A button or link without
// a text is hidden.
import QtQuick
import configtools

Item {
    id: root

    required property string iconName  // see OVIcon
    required property string title
    property string hint  // "" for none
    property string actionText  // text of the first button
    property var choices: []  // further buttons next to the action: objects with "text" and "objectName"
    property string linkText  // text of a link below the action
    property string demoText  // text of a second link, to the demo site
    property bool busy: false  // a spinner replaces the icon
    signal activated  // by the first button
    signal chosen(string choice)  // "objectName" of one of `choices`
    signal linkActivated
    signal demoActivated

    implicitHeight: column.implicitHeight

    Column {
        id: column
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.pageMargin, 460)
        spacing: Theme.unit

        Rectangle {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 72
            height: 72
            color: Theme.colours.accentSofter
            radius: width / 2

            OVIcon {
                anchors.centerIn: parent
                color: Theme.colours.accent
                name: root.iconName
                size: 30
                visible: !root.busy
            }
            OVSpinner {
                anchors.centerIn: parent
                running: root.busy
                size: 30
                visible: root.busy
            }
        }
        Item {
            width: 1
            height: Theme.half
        }
        OVParagraph {
            width: parent.width
            font: Theme.leadFont
            horizontalAlignment: Text.AlignHCenter
            objectName: "emptyTitle"
            text: root.title
        }
        OVParagraph {
            width: parent.width
            color: Theme.colours.sub
            horizontalAlignment: Text.AlignHCenter
            objectName: "emptyHint"
            text: root.hint
            visible: root.hint !== ""
        }
        Item {
            width: 1
            height: Theme.half
            visible: action.visible
        }
        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: Theme.unit

            OVButton {
                id: action
                objectName: "emptyActionButton"
                text: root.actionText
                visible: root.actionText !== ""
                onClicked: root.activated()
            }
            // qmllint disable unqualified
            Repeater {
                model: root.choices

                OVButton {
                    required property var modelData

                    objectName: modelData.objectName
                    text: modelData.text
                    onClicked: root.chosen(modelData.objectName)
                }
            }
            // qmllint enable unqualified
        }
        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: Theme.pageMargin
            visible: root.linkText !== "" || root.demoText !== ""

            OVLinkButton {
                objectName: "emptyLink"
                text: root.linkText
                visible: root.linkText !== ""
                onClicked: root.linkActivated()
            }
            OVLinkButton {
                objectName: "emptyDemoLink"
                text: root.demoText
                visible: root.demoText !== ""
                onClicked: root.demoActivated()
            }
        }
    }
}
