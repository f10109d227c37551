// The strength of a password in three steps, one of which is lit. The owner sets the width.
import QtQuick
import configtools

Row {
    id: root

    /// Number of kinds of characters in the password: 1 (weak) to 3 (strong). The kinds are digits, Latin letters and
    /// others; the underscore is of no kind. 0, as for "" or "___": no step is lit.
    required property int grade
    readonly property var steps: [
        {word: qsTr("弱"), lit: Theme.colours.passwordWeak},
        {word: qsTr("中"), lit: Theme.colours.passwordMedium},
        {word: qsTr("强"), lit: Theme.colours.passwordStrong}
    ]

    spacing: Theme.half

    Accessible.role: Accessible.Indicator
    Accessible.name: qsTr("密码强度") + " " + (steps[grade - 1]?.word ?? "")

    // qmllint disable unqualified
    Repeater {
        model: root.steps

        Column {
            id: step

            required property int index
            required property var modelData
            readonly property bool lit: root.grade === index + 1

            width: (root.width - 2 * root.spacing) / 3
            spacing: Theme.half

            Rectangle {
                width: parent.width
                height: Theme.signGap
                color: step.lit ? step.modelData.lit : Theme.colours.passwordUnlit
                objectName: "strength" + (step.index + 1)
                radius: height / 2
            }
            OVLabel {
                width: parent.width
                color: step.lit ? Theme.colours.text : Theme.colours.faint
                font: Theme.hintFont
                horizontalAlignment: Text.AlignHCenter
                text: step.modelData.word
            }
        }
    }
    // qmllint enable unqualified
}
