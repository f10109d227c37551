// A pane that says what a page will hold.
import QtQuick
import configtools

Item {
    id: root

    required property string iconName
    required property string title
    required property string hint

    Rectangle {
        anchors.fill: parent
        anchors.margins: Theme.pageMargin
        border.color: Theme.colours.line
        border.width: Theme.line
        color: Theme.colours.surface
        radius: Theme.paneRadius

        OVEmptyState {
            anchors.fill: parent
            hint: root.hint
            iconName: root.iconName
            title: root.title
        }
    }
}
