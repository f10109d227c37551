// The tool tip of the item that it stands in. It comes into being only while it is shown, since a table has
// hundreds of places for one.
import QtQuick
import QtQuick.Templates as T
import configtools

Loader {
    id: root

    required property string text
    required property bool shown

    width: parent?.width ?? 0
    height: parent?.height ?? 0
    active: shown && text !== ""

    // qmllint disable unqualified
    sourceComponent: T.ToolTip {
        id: bubble

        parent: root
        x: Math.round((root.width - width) / 2)
        y: root.height + Theme.half
        margins: Theme.unit
        padding: Theme.unit
        topPadding: 5
        bottomPadding: 5
        implicitWidth: Math.ceil(Math.min(words.implicitWidth, Theme.toolTipWidth)) + leftPadding + rightPadding
        implicitHeight: implicitContentHeight + topPadding + bottomPadding
        closePolicy: T.Popup.NoAutoClose
        delay: Theme.toolTipDelay
        text: root.text

        contentItem: OVParagraph {
            id: words
            objectName: "toolTip"
            color: Theme.colours.bubbleInk
            elide: Text.ElideRight
            font: Theme.hintFont
            maximumLineCount: 12  // of a device's answer or a file's cell, which may be pages
            text: bubble.text
        }

        background: Rectangle {
            color: Theme.colours.bubble
            radius: Theme.smallRadius
        }

        Component.onCompleted: open()
    }
    // qmllint enable unqualified
}
