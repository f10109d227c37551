// A combo box without text input. The model is an array of texts or numbers. A choice of the user sets `currentIndex`
// and then emits activated(index), with the index from 0; the mouse wheel does not change the choice.
import QtQuick
import QtQuick.Templates as T
import configtools

T.ComboBox {
    id: root

    property string accessibleName  // for screen readers

    implicitWidth: Theme.choiceWidth
    implicitHeight: Theme.controlHeight
    focusPolicy: Qt.StrongFocus
    font: Theme.bodyFont
    hoverEnabled: true
    leftPadding: 11
    rightPadding: 30
    wheelEnabled: false  // scrolling a page must not change the value under the pointer

    Accessible.name: accessibleName

    contentItem: OVLabel {
        color: root.enabled ? Theme.colours.text : Theme.colours.disabledText
        font: root.font
        objectName: "chosenText"
        text: root.displayText
    }

    indicator: OVIcon {
        x: root.width - width - 10
        anchors.verticalCenter: parent?.verticalCenter
        color: root.enabled ? Theme.colours.faint : Theme.colours.disabledText
        name: "down"
        size: Theme.smallIconSize
    }

    background: Rectangle {
        border.color: root.visualFocus || root.down ? Theme.colours.accent
            : root.hovered && root.enabled ? Theme.colours.lineStrong : Theme.colours.line
        border.width: Theme.line
        color: root.enabled ? Theme.colours.surface : Theme.colours.disabledFill
        radius: Theme.controlRadius

        OVFocusRing { shown: root.visualFocus && !root.down }
    }

    // qmllint disable unqualified
    delegate: T.ItemDelegate {
        id: entry

        required property int index
        required property var modelData
        readonly property bool chosen: index === root.currentIndex

        width: ListView.view?.width ?? 0
        implicitHeight: Theme.controlHeight
        highlighted: root.highlightedIndex === index
        hoverEnabled: true
        leftPadding: 11
        objectName: "choice" + index
        text: modelData

        contentItem: OVLabel {
            color: entry.chosen ? Theme.colours.accent : Theme.colours.text
            font: entry.chosen ? Theme.buttonFont : root.font
            showsFullTextOnHover: false
            text: entry.text
        }
        background: Rectangle {
            anchors.fill: parent
            anchors.leftMargin: Theme.half
            anchors.rightMargin: Theme.half
            color: entry.highlighted ? Theme.colours.accentSoft : Theme.colours.clear
            radius: Theme.smallRadius
        }
    }

    popup: T.Popup {
        y: root.height + Theme.half
        width: root.width
        implicitHeight: Math.min(choices.contentHeight, Theme.shownChoices * Theme.controlHeight)
            + topPadding + bottomPadding
        margins: Theme.unit
        topPadding: Theme.half
        bottomPadding: Theme.half

        contentItem: ListView {
            id: choices
            boundsBehavior: Flickable.StopAtBounds
            clip: true
            currentIndex: root.highlightedIndex
            implicitHeight: contentHeight
            model: root.popup.visible ? root.delegateModel : null

            T.ScrollBar.vertical: OVScrollBar {}
        }

        background: Rectangle {
            border.color: Theme.colours.line
            border.width: Theme.line
            color: Theme.colours.surface
            radius: Theme.controlRadius

            OVShadow { around: Theme.controlRadius; depth: 12 }
        }
    }
    // qmllint enable unqualified
}
