// Edits and stores the note of a device, which must have a MAC or UUID. An empty note is removed.
import QtQuick
import configtools

OVDialog {
    id: root

    required property DeviceNotes notes  // notes of the user about devices
    property var values: ({})  // values of the device's row, by key, as get() of a table model returns them

    /// Opens the dialog for the device of a row. Shows why the stored notes could not be read, if so.
    function edit(values) {
        root.values = values;
        const note = notes.noteOf(values);
        field.maximumLength = Math.max(notes.longestNote, note.length);
        field.text = note;
        open();
        if (notes.problem !== "")
            inform(notes.problem, OVToast.Error);
    }

    wantedWidth: Theme.noteWidth
    objectName: "noteDialog"
    okText: qsTr("保存")
    title: qsTr("备注")
    onAccepted: {
        const failure = notes.setNote(values, field.text);
        if (failure === "")
            close();
        else
            refuse(failure);
    }
    onOpened: {
        field.forceActiveFocus();
        field.selectAll();
    }

    OVField {
        width: parent.width
        label: [root.values.name, root.values.ipport].filter(text => (text ?? "") !== "").join("  ")

        OVTextField {
            id: field
            width: parent.width
            accessibleName: qsTr("备注")
            focus: true
            objectName: "noteField"
        }
    }
}
