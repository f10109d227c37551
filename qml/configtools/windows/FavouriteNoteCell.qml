// The editable note of a favourite. Enter and leaving the field save the text, Escape discards it.
import QtQuick
import configtools

OVTableCell {
    id: root

    required property string fullNote  // full text; the table may show a part
    property bool editable: true
    signal edited(string note)

    property bool editing: false
    property string before  // text at the start of editing

    readonly property int longest: 50  // maximum characters of input; a longer stored note is not truncated

    function begin() {
        field.maximumLength = Math.max(longest, fullNote.length);
        field.text = fullNote;
        before = field.text;
        editing = true;
        field.forceActiveFocus();
        field.selectAll();
    }

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
