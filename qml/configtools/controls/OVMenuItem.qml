// An entry of an OVMenu. It emits triggered().
import QtQuick
import QtQuick.Templates as T
import configtools

T.MenuItem {
    id: root

    property string iconName  // see OVIcon; "" for none; not shown if `ticks`
    property bool marksChoice: false  // the entry is the current choice: shown in colour, with a check mark
    property bool ticks: false  // choosing the entry toggles `checked`, shown by a check mark
    property bool startsGroup: false  // first of a group: a line is drawn above it

    implicitWidth: Math.max(180, label.implicitWidth + leftPadding + rightPadding)
    implicitHeight: Theme.rowHeight
    leftPadding: iconName !== "" || ticks ? 38 : 12
    rightPadding: 36

    checkable: ticks

    Accessible.name: text

    contentItem: OVLabel {
        id: label
        color: !root.enabled ? Theme.colours.disabledText
            : root.marksChoice ? Theme.colours.accent : Theme.colours.text
        font: root.marksChoice ? Theme.buttonFont : Theme.bodyFont
        showsFullTextOnHover: false
        text: root.text
    }

    indicator: OVIcon {
        x: 12
        anchors.verticalCenter: parent?.verticalCenter
        color: root.enabled ? Theme.colours.sub : Theme.colours.disabledText
        name: root.ticks ? "check" : root.iconName
        size: Theme.boxSize
        visible: root.ticks ? root.checked : root.iconName !== ""
    }

    arrow: OVIcon {
        x: root.width - width - 10
        anchors.verticalCenter: parent?.verticalCenter
        color: root.marksChoice ? Theme.colours.accent : Theme.colours.faint
        name: root.marksChoice ? "check" : "right"
        size: Theme.smallIconSize
        visible: root.marksChoice || root.subMenu !== null
    }

    background: Rectangle {
        anchors.fill: parent
        anchors.leftMargin: Theme.half
        anchors.rightMargin: Theme.half
        color: root.highlighted ? Theme.colours.accentSoft : Theme.colours.clear
        radius: Theme.smallRadius

        Rectangle {
            x: -Theme.half
            width: root.width
            height: Theme.line
            color: Theme.colours.line
            visible: root.startsGroup
        }
    }
}
