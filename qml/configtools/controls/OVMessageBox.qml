// A message with one button, or a question that also has "cancel". A third button is optional (`otherText`). A button
// closes the box and emits accepted(), rejected() ("cancel") or otherChosen(). Escape and the close button emit
// rejected(), also for a message.
import QtQuick
import configtools

OVDialog {
    id: root

    /// Questions have the cancel button. In a DangerQuestion it has the keyboard focus, and the primary button is red.
    enum Kind { Information, Error, Question, DangerQuestion }

    property int kind: OVMessageBox.Information  // a Kind
    property string message
    property string otherText  // text of the third button; without a text it is hidden
    signal otherChosen  // by the third button

    /// Opens the box with this message. Without `ofKind` it is an Information. `title` and `otherText` keep their
    /// values.
    function show(text, ofKind) {
        message = text;
        kind = ofKind ?? OVMessageBox.Information;
        open();
    }

    readonly property bool asks: kind === OVMessageBox.Question || kind === OVMessageBox.DangerQuestion

    wantedWidth: Theme.messageWidth
    hasCancel: asks
    okKind: kind === OVMessageBox.DangerQuestion ? OVButton.DangerPrimary : OVButton.Primary
    title: qsTr("提示")
    onAccepted: close()
    onOpened: if (kind === OVMessageBox.DangerQuestion) focusCancel()  // pressing Enter twice must not confirm

    footContent: OVButton {
        anchors.verticalCenter: parent.verticalCenter
        objectName: "otherButton"
        text: root.otherText
        visible: root.otherText !== ""
        onClicked: {
            root.close();
            root.otherChosen();
        }
    }

    OVNotice {
        width: parent.width
        iconColor: root.kind === OVMessageBox.Information ? Theme.colours.accent
            : root.kind === OVMessageBox.Question ? Theme.colours.warn : Theme.colours.bad
        iconName: root.kind === OVMessageBox.Information ? "about"
            : root.kind === OVMessageBox.Error ? "error" : "alert"
        text: root.message
    }
}
