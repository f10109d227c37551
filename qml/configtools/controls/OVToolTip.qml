// The tool tip of its parent item. The popup is created only while `shown`, as a table has hundreds of tool tips. It
// opens after Theme.toolTipDelay and closes on a click, a key or after Theme.toolTipTime. Long text is elided to stay
// within the window. The popup is below the parent. An ancestor can have a property "tipDrop": a further distance in
// pixels, so that the tips of a tool bar do not cover the head of the table below it.
import QtQuick
import QtQuick.Templates as T
import configtools

Loader {
    id: root

    required property string text  // no tool tip without a text
    required property bool shown  // the pointer is over the parent
    property string footnote  // further text below, shown completely also if `text` is elided; "" for none
    property int widest: Theme.toolTipWidth  // maximum width of the text in pixels
    readonly property int mostLines: 24

    /// The "tipDrop" of the item or its nearest ancestor that has one; 0 without one.
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
        implicitWidth: Math.ceil(Math.min(Math.max(tipLabel.implicitWidth, note.implicitWidth), root.widest))
            + leftPadding + rightPadding
        implicitHeight: implicitContentHeight + topPadding + bottomPadding
        closePolicy: T.Popup.NoAutoClose
        delay: Theme.toolTipDelay
        timeout: Theme.toolTipTime
        text: root.text

        contentItem: Column {
            OVParagraph {
                id: tipLabel
                width: bubble.availableWidth
                color: Theme.colours.bubbleText
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
                color: Theme.colours.bubbleText
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
