// The list of suggested commands below or above a field. The field keeps the keyboard focus and handles the keys.
import QtQuick
import QtQuick.Templates as T
import configtools

T.Popup {
    id: root

    required property CgiCommands commands  // marks favourites with a star
    required property var suggestions  // array of the commands, as texts
    required property int marked  // index of the selected suggestion, -1 for none
    signal taken(string command)  // a suggestion was clicked

    implicitHeight: column.implicitHeight + topPadding + bottomPadding
    margins: Theme.unit
    topPadding: Theme.half
    bottomPadding: Theme.half
    closePolicy: T.Popup.CloseOnPressOutsideParent
    focus: false

    contentItem: Column {
        id: column

        // qmllint disable unqualified
        Repeater {
            model: root.suggestions

            Rectangle {
                id: entry

                required property int index
                required property string modelData

                x: Theme.half
                width: root.width - 2 * Theme.half
                height: Theme.controlHeight
                color: root.marked === index || pointer.hovered ? Theme.colours.accentSoft : Theme.colours.clear
                objectName: "cgiSuggestion" + index
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
                    onTapped: root.taken(entry.modelData)
                }
            }
        }
        // qmllint enable unqualified
    }
    background: Rectangle {
        border.color: Theme.colours.line
        border.width: Theme.line
        color: Theme.colours.surface
        radius: Theme.controlRadius

        OVShadow { around: Theme.controlRadius; depth: 12 }
    }
}
