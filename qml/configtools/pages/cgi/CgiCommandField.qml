// A field for a command. While it has the keyboard it offers what was sent before; the star keeps a command.
import QtQuick
import QtQuick.Templates as T
import configtools

FocusScope {
    id: root

    required property CgiCommands commands
    property alias text: field.text
    property alias errorText: field.errorText
    readonly property bool starred: commands.isFavourite(field.text.trim())
    property var offers: []
    property int marked: -1
    signal edited
    signal accepted

    function offer() {
        offers = field.activeFocus ? commands.matching(field.text) : [];
        marked = -1;
        if (offers.length > 0)
            list.open();
        else
            list.close();
    }

    function take(command) {
        list.close();
        field.text = command;
        edited();
    }

    implicitWidth: 240
    implicitHeight: field.implicitHeight

    OVTextField {
        id: field
        width: parent.width - star.width
        accessibleName: qsTr("CGI命令")
        focus: true
        maximumLength: 2048
        objectName: "cgiCommandText"
        placeholderText: "/cgi-bin/"
        textFont: Theme.figureFont
        onAccepted: {
            list.close();
            root.accepted();
        }
        onActiveFocusChanged: if (!activeFocus) list.close()
        onEdited: {
            root.edited();
            root.offer();
        }

        Keys.priority: Keys.BeforeItem
        Keys.onDownPressed: {
            if (!list.visible)
                root.offer();
            else
                root.marked = Math.min(root.offers.length - 1, root.marked + 1);
        }
        Keys.onUpPressed: root.marked = Math.max(-1, root.marked - 1)
        Keys.onEscapePressed: event => {
            event.accepted = list.visible;
            list.close();
        }
        Keys.onReturnPressed: event => {
            event.accepted = list.visible && root.marked >= 0;
            if (event.accepted)
                root.take(root.offers[root.marked]);
        }
    }
    OVIconButton {
        id: star
        x: parent.width - width
        enabled: field.text.trim() !== "" || root.starred
        focusPolicy: Qt.NoFocus
        iconName: "star"
        iconSize: Theme.boxSize
        ink: root.starred ? Theme.colours.warn : Theme.colours.faint
        objectName: "cgiStarButton"
        toolTip: root.starred ? qsTr("从常用命令中移除") : qsTr("保存为常用命令")
        onClicked: root.commands.setFavourite(field.text.trim(), !root.starred)
    }

    // qmllint disable unqualified
    T.Popup {
        id: list
        y: Theme.controlHeight + Theme.half
        width: root.width
        implicitHeight: column.implicitHeight + topPadding + bottomPadding
        margins: Theme.unit
        topPadding: Theme.half
        bottomPadding: Theme.half
        closePolicy: T.Popup.CloseOnPressOutsideParent
        focus: false

        contentItem: Column {
            id: column

            Repeater {
                model: root.offers

                Rectangle {
                    id: entry

                    required property int index
                    required property string modelData

                    x: Theme.half
                    width: root.width - 2 * Theme.half
                    height: Theme.controlHeight
                    color: root.marked === index || pointer.hovered ? Theme.colours.accentSoft : Theme.colours.clear
                    objectName: "cgiOffer" + index
                    radius: Theme.smallRadius

                    OVIcon {
                        id: sign
                        x: Theme.half
                        anchors.verticalCenter: parent.verticalCenter
                        color: root.commands.isFavourite(entry.modelData) ? Theme.colours.warn : Theme.colours.faint
                        name: root.commands.isFavourite(entry.modelData) ? "star" : "history"
                        size: Theme.smallIconSize
                    }
                    OVLabel {
                        x: sign.x + sign.width + Theme.unit
                        width: parent.width - x - Theme.half
                        height: parent.height
                        font: Theme.figureFont
                        text: entry.modelData
                    }
                    HoverHandler {
                        id: pointer
                    }
                    TapHandler {
                        onTapped: root.take(entry.modelData)
                    }
                }
            }
        }
        background: Rectangle {
            border.color: Theme.colours.line
            border.width: Theme.line
            color: Theme.colours.surface
            radius: Theme.controlRadius

            OVShadow { around: Theme.controlRadius; depth: 12 }
        }
    }
    // qmllint enable unqualified
}
