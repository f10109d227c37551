// Asks for the passphrase of an encrypted device list that is imported. On accepted(), the owner reads `path` and
// `passphrase`, then closes the dialog.
import QtQuick
import configtools

OVDialog {
    id: root

    property string path  // of the list
    readonly property alias passphrase: field.text

    /// Opens the dialog for a list, with the reason why an earlier passphrase failed; "" for none.
    function ask(path, failure) {
        root.path = path;
        field.text = "";
        open();
        if (failure !== "")
            inform(failure, OVToast.Error);
    }

    wantedWidth: Theme.messageWidth
    objectName: "passphraseDialog"
    okEnabled: field.text !== ""
    title: qsTr("加密的设备列表")
    onOpened: field.forceActiveFocus()
    onClosed: field.text = ""

    OVField {
        width: parent.width
        label: root.path.slice(root.path.lastIndexOf("/") + 1)

        OVTextField {
            id: field
            width: parent.width
            accessibleName: qsTr("密码短语")
            focus: true
            objectName: "passphraseField"
            placeholderText: qsTr("密码短语")
            secret: true
        }
    }
}
