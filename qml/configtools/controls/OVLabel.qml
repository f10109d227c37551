// A line of plain text, elided if it is too long. The baseline does not depend on the script, so that Chinese and Latin
// texts align.
import QtQuick
import configtools

Item {
    id: root

    property alias text: label.text
    property alias color: label.color
    property alias font: label.font
    property alias horizontalAlignment: label.horizontalAlignment
    property alias elide: label.elide
    property bool showsFullTextOnHover: true  // an elided text has a tool tip with the full text
    readonly property alias truncated: label.truncated

    implicitWidth: Math.ceil(label.implicitWidth)
    implicitHeight: Math.round(label.font.pixelSize * Theme.lineRatio)
    baselineOffset: label.y + label.baselineOffset

    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Text {
        id: label

        y: Math.round(root.height / 2 + font.pixelSize * Theme.baselineShift - baselineOffset)
        width: root.width
        color: Theme.colours.text
        elide: Text.ElideRight
        font: Theme.bodyFont
        maximumLineCount: 1
        renderType: Theme.textRendering
        textFormat: Text.PlainText
    }

    HoverHandler {
        id: pointer
        enabled: root.showsFullTextOnHover && label.truncated
    }

    OVToolTip {
        shown: pointer.enabled && pointer.hovered
        text: label.text
    }
}
