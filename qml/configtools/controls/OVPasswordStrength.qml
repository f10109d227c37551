// How strong a password is, in three steps.
import QtQuick
import configtools

Row {
    id: root

    required property int grade  // 0 to 3
    readonly property var steps: [
        {word: qsTr("弱"), lit: Theme.colours.strengthWeak},
        {word: qsTr("中"), lit: Theme.colours.strengthMedium},
        {word: qsTr("强"), lit: Theme.colours.strengthStrong}
    ]

    height: Theme.controlHeight
    spacing: Theme.half

    // qmllint disable unqualified
    Repeater {
        model: root.steps

        Item {
            id: step

            required property int index
            required property var modelData
            readonly property bool isLit: root.grade === index + 1

            width: Math.max(Theme.unit * 6, word.implicitWidth)
            height: root.height

            Rectangle {
                y: Theme.unit - 2
                width: parent.width
                height: Theme.half
                color: step.isLit ? step.modelData.lit : Theme.colours.strengthUnlit
                radius: height / 2
            }
            OVLabel {
                id: word
                y: Theme.unit + Theme.half
                width: parent.width
                color: step.isLit ? Theme.colours.ink : Theme.colours.faint
                font: Theme.hintFont
                horizontalAlignment: Text.AlignHCenter
                text: step.modelData.word
            }
        }
    }
    // qmllint enable unqualified
}
