// A part of a panel, with a heading.
import QtQuick
import configtools

Column {
    id: root

    required property string title
    property string note  // shown in place of the content; "" shows the content
    default property alias content: body.data

    spacing: Theme.controlGap

    Item {
        width: parent.width
        height: Theme.unit * 3

        OVLabel {
            height: parent.height - Theme.half
            color: Theme.colours.sub
            font: Theme.headFont
            text: root.title
        }
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: Theme.line
            color: Theme.colours.line
        }
    }
    OVParagraph {
        width: parent.width
        color: Theme.colours.warnText
        text: root.note
        visible: root.note !== ""
    }
    Column {
        id: body
        width: parent.width
        spacing: Theme.controlGap
        visible: root.note === ""
    }
}
