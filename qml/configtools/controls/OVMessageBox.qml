// A message that has to be read, or a question that has to be answered.
import QtQuick
import configtools

OVDialog {
    id: root

    enum Kind { Information, Error, Question, DangerQuestion }

    property int kind: OVMessageBox.Information
    property string message

    function show(text, ofKind) {
        message = text;
        kind = ofKind ?? OVMessageBox.Information;
        open();
    }

    readonly property bool asks: kind === OVMessageBox.Question || kind === OVMessageBox.DangerQuestion

    width: 400
    hasCancel: asks
    okKind: kind === OVMessageBox.DangerQuestion ? OVButton.DangerPrimary : OVButton.Primary
    title: qsTr("提示")
    onAccepted: close()

    Row {
        width: parent.width
        spacing: 12

        OVIcon {
            id: sign
            y: 1
            color: root.kind === OVMessageBox.Information ? Theme.colours.accent
                : root.kind === OVMessageBox.Question ? Theme.colours.warn : Theme.colours.bad
            name: root.kind === OVMessageBox.Information ? "about"
                : root.kind === OVMessageBox.Error ? "error" : "alert"
        }
        OVParagraph {
            width: parent.width - sign.width - parent.spacing
            objectName: "messageText"
            text: root.message
        }
    }
}
