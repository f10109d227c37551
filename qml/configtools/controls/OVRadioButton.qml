// A radio button with a text. Those with the same parent exclude each other.
import QtQuick
import QtQuick.Templates as T
import configtools

T.RadioButton {
    id: root

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Theme.controlHeight
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    leftPadding: Theme.boxSize + spacing
    spacing: Theme.unit

    Accessible.name: text

    indicator: Rectangle {
        y: Math.round((root.height - height) / 2)
        width: Theme.boxSize
        height: Theme.boxSize
        border.color: root.checked ? (root.enabled ? Theme.colours.accent : Theme.colours.accentDisabled)
            : root.hovered ? Theme.colours.accent : Theme.colours.lineStrong
        border.width: root.checked ? 5 : Theme.line
        color: root.enabled ? Theme.colours.surface : Theme.colours.disabledFill
        radius: width / 2

        OVFocusRing { shown: root.visualFocus; around: Theme.boxSize / 2 }
    }

    contentItem: OVLabel {
        color: root.enabled ? Theme.colours.text : Theme.colours.disabledText
        text: root.text
    }
}
