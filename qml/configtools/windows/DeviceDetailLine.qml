// A line of the details: a label and its value. Part of the value can be selected and copied with the mouse and
// keyboard; a button copies the line.
import QtQuick
import configtools

Rectangle {
    id: root

    required property int index  // in the list
    required property string label
    required property string value
    property bool current: false  // the line is selected in the list
    signal copyRequested  // copy the line

    height: Math.max(Theme.rowHeight, valueText.height + Theme.controlGap)
    color: current ? Theme.colours.rowSelected : pointer.hovered ? Theme.colours.rowHoverVeil : Theme.colours.clear
    objectName: "detailLine" + index
    radius: Theme.smallRadius

    Accessible.role: Accessible.ListItem
    Accessible.name: label + " " + value
    Accessible.selected: current

    HoverHandler {
        id: pointer
    }

    OVLabel {
        x: Theme.unit
        width: Theme.wideLabelWidth
        height: Theme.rowHeight
        color: Theme.colours.sub
        text: root.label
    }
    // Text reports the baseline of its first line for every script, TextEdit only that of Latin text.
    Text {
        id: baseline
        width: valueText.width
        font: valueText.font
        renderType: valueText.renderType
        text: valueText.text
        textFormat: Text.PlainText
        visible: false
        wrapMode: Text.WrapAnywhere
    }
    TextEdit {
        id: valueText
        x: Theme.wideLabelWidth + 2 * Theme.unit
        y: Math.round(Theme.rowHeight / 2 + font.pixelSize * Theme.baselineShift - baseline.baselineOffset)
        width: copy.x - x - Theme.unit
        color: Theme.colours.text
        font: Theme.figureFont
        objectName: "detailValue"
        readOnly: true
        renderType: Theme.textRendering
        selectByMouse: true
        selectedTextColor: Theme.colours.text
        selectionColor: Theme.colours.rowSelected
        text: root.value
        textFormat: TextEdit.PlainText
        wrapMode: TextEdit.WrapAnywhere

        Accessible.ignored: true  // the line has the accessible name
    }
    OVIconButton {
        id: copy
        anchors.right: parent.right
        anchors.rightMargin: Theme.controlGap
        anchors.verticalCenter: parent.verticalCenter
        implicitWidth: Theme.unit * 3
        implicitHeight: Theme.unit * 3
        focusPolicy: Qt.NoFocus
        iconName: "copy"
        iconSize: Theme.smallIconSize
        objectName: "detailCopy" + root.index
        opacity: pointer.hovered || root.current ? 1 : 0
        toolTip: qsTr("复制这一行")
        onClicked: root.copyRequested()
    }
}
