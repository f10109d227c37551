// A table cell with an editable channel name. Tab and the arrow keys move to another row, and Escape reverts the name.
// Enter is only reported: the panel moves on or saves. The cell writes nothing.
import QtQuick
import configtools

OVTableCell {
    id: root

    required property int wantedRow  // row (from 0) whose cell takes the keyboard focus, -1 for none
    signal edited(string name)  // the text was changed by typing; name: the complete new text
    signal reverted  // restore the saved name
    signal leftFor(int row)  // row that gets the keyboard focus; -1 and the row count: outside of the rows
    signal confirmed  // by Enter
    signal reached  // the wanted row got the keyboard focus
    signal entered  // focused by a click

    readonly property bool wanted: rowIndex >= 0 && wantedRow === rowIndex  // this row gets the keyboard focus
    readonly property string name: value ?? ""  // the edited name

    /// Takes the keyboard focus if this row is still the wanted one.
    function take() {
        if (!wanted)
            return;
        field.forceActiveFocus(Qt.TabFocusReason);
        field.selectAll();
        reached();
    }

    onNameChanged: if (field.text !== name) field.text = name
    onWantedChanged: if (wanted) arriving.start()

    // The row may not be in view yet.
    Timer {
        id: arriving
        interval: 0
        onTriggered: root.take()
    }

    Rectangle {  // left of the field, which aligns with the heading
        x: -Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        width: Theme.changeMark
        height: width
        color: Theme.colours.warn
        objectName: "nameChanged" + root.rowIndex
        radius: width / 2
        visible: root.row?.changed ?? false

        Accessible.role: Accessible.StaticText
        Accessible.name: qsTr("已修改，尚未保存")
    }
    OVTextField {
        id: field
        y: Theme.line
        width: root.width - Theme.unit
        accessibleName: qsTr("通道 %1 的名称").arg(root.rowIndex + 1)
        objectName: "channelName" + root.rowIndex
        onActiveFocusChanged: {
            if (!activeFocus || root.current)
                return;
            root.entered();
            forceActiveFocus(Qt.MouseFocusReason);  // a view focuses its new current row
        }
        onEdited: root.edited(text)
        onTabPressed: event => {
            const next = root.rowIndex + (event.key === Qt.Key_Backtab ? -1 : 1);
            event.accepted = next >= 0;  // from the first row Qt goes back to the table
            if (event.accepted)
                root.leftFor(next);
        }

        Keys.onDownPressed: root.leftFor(root.rowIndex + 1)
        Keys.onEnterPressed: root.confirmed()
        Keys.onEscapePressed: event => {
            event.accepted = root.row.changed || field.text !== root.name;
            root.reverted();
            field.text = root.name;  // input that the table has not read yet never becomes the name
        }
        Keys.onReturnPressed: root.confirmed()
        Keys.onUpPressed: root.leftFor(root.rowIndex - 1)
    }
}
