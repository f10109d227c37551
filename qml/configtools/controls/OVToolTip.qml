// The tool tip of the item that it stands in. It comes into being only while it is shown, since a table has
// hundreds of places for one. It goes with the next click or key, and by itself after some time. A long text is cut, so that it ends within the window and does not hide most of it. It
// stands below the item; within an item with "tipDrop", as a tool bar above the heading of a table, so much lower.
import QtQuick
import QtQuick.Templates as T
import configtools

Loader {
    id: root

    required property string text
    required property bool shown
    property string footnote  // stands below the text, also where that is cut
    property int widest: Theme.toolTipWidth
    readonly property int mostLines: 24

    function dropIn(item) {
        return item ? item.tipDrop || dropIn(item.parent) : 0;
    }

    width: parent?.width ?? 0
    height: parent?.height ?? 0
    active: shown && visible && text !== ""

    // qmllint disable unqualified
    sourceComponent: T.ToolTip {
        id: bubble

        parent: root
        x: Math.round((root.width - width) / 2)
        y: root.height + Theme.half + root.dropIn(root.parent)
        margins: Theme.unit
        padding: Theme.unit
        topPadding: 5
        bottomPadding: 5
        implicitWidth: Math.ceil(Math.min(Math.max(words.implicitWidth, note.implicitWidth), root.widest))
            + leftPadding + rightPadding
        implicitHeight: implicitContentHeight + topPadding + bottomPadding
        closePolicy: T.Popup.NoAutoClose
        delay: Theme.toolTipDelay
        timeout: Theme.toolTipTime
        text: root.text

        contentItem: Column {
            OVParagraph {
                id: words
                width: bubble.availableWidth
                color: Theme.colours.bubbleInk
                elide: Text.ElideRight
                font: Theme.hintFont
                maximumLineCount: {
                    const room = root.Window.height - 2 * bubble.margins - bubble.topPadding - bubble.bottomPadding;
                    return Math.max(1, Math.min(root.mostLines, Math.floor((room - note.height) / lineHeight)));
                }
                objectName: "toolTip"
                text: bubble.text
            }
            OVParagraph {
                id: note
                width: bubble.availableWidth
                height: visible ? implicitHeight : 0
                color: Theme.colours.bubbleInk
                font: Theme.hintFont
                objectName: "toolTipNote"
                text: root.footnote
                visible: text !== ""
            }
        }

        background: Rectangle {
            color: Theme.colours.bubble
            radius: Theme.smallRadius
        }

        InputWatch {
            window: root.Window.window
            onPressed: bubble.close()
        }
        Component.onCompleted: open()
    }
    // qmllint enable unqualified
}
