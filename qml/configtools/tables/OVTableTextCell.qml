// A cell with a line of text: by default `value`, "" for an undefined one.
import QtQuick
import configtools

OVTableCell {
    id: root

    property alias font: label.font
    property alias color: label.color
    property alias text: label.text

    OVLabel {
        id: label
        width: root.width - Theme.unit
        height: root.height
        text: root.value ?? ""
    }
}
