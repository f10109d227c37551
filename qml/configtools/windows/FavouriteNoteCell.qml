// A table cell with the note of a favourite and a button that edits it in a field. Enter and leaving the field report a
// changed text, Escape discards it. The owner stores it.
import QtQuick
import configtools

OVTableCell {
    id: root

    required property string fullNote  // full text; the table may show a part
    property bool editable: true  // editing can begin
    signal edited(string note)  // store the changed note

    property bool editing: false  // the field is shown
    property string before  // text at the start of editing

    readonly property int longest: 50  // maximum characters of input; a longer stored note is not truncated

    /// Shows the field with the complete note.
    function begin() {
        field.maximumLength = Math.max(longest, fullNote.length);
        field.text = fullNote;
        before = field.text;
        editing = true;
        field.forceActiveFocus();
        field.selectAll();
    }

    /// Hides the field, and with `keep` reports a changed text.
    function end(keep) {
        if (!editing)
            return;
        editing = false;
        if (keep && field.text !== before)
            edited(field.text);
    }

    onRowIndexChanged: editing = false  // the cell was reused for another row

    HoverHandler {
        id: pointer
    }

    OVLabel {
        width: root.width - Theme.unit - pencil.width
        height: root.height
        objectName: "note" + root.rowIndex
        text: root.value ?? ""
        visible: !root.editing
    }
    OVIconButton {
        id: pencil
        anchors.right: parent.right
        anchors.rightMargin: Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        implicitWidth: Theme.unit * 3
        implicitHeight: Theme.unit * 3
        focusPolicy: root.current || activeFocus ? Qt.StrongFocus : Qt.NoFocus
        iconName: "note"
        iconSize: Theme.smallIconSize
        objectName: "editNote" + root.rowIndex
        opacity: root.editable && (pointer.hovered || root.current || activeFocus) ? 1 : 0
        enabled: root.editable
        toolTip: qsTr("编辑备注")
        visible: !root.editing
        onClicked: root.begin()
    }
    OVTextField {
        id: field
        x: -Theme.unit
        y: Theme.line
        width: root.width
        accessibleName: qsTr("备注")
        objectName: "noteEditor"
        visible: root.editing
        onAccepted: root.end(true)
        onActiveFocusChanged: if (!activeFocus) root.end(true)
        Keys.onEscapePressed: root.end(false)
        Keys.onReturnPressed: root.end(true)
        Keys.onEnterPressed: root.end(true)
    }
}
