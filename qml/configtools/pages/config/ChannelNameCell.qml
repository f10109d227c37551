// The name of a channel, edited in its place. Enter, Tab and the arrow keys go on to another row, Enter in the last one to
// the next device; Escape takes back what was typed.
import QtQuick
import configtools

OVTableCell {
    id: root

    required property int wantedRow  // that is to have the keyboard
    signal edited(string name)
    signal reverted
    signal leftFor(int row)  // -1 and the number of rows lie outside
    signal confirmed  // with Enter
    signal reached  // the wanted row has the keyboard
    signal entered  // the keyboard came by itself, with a click

    readonly property bool wanted: rowIndex >= 0 && wantedRow === rowIndex
    readonly property string name: value ?? ""

    function take() {
        if (!wanted)
            return;
        field.forceActiveFocus(Qt.TabFocusReason);
        field.selectAll();
        reached();
    }

    onNameChanged: if (field.text !== name) field.text = name
    onWantedChanged: if (wanted) arriving.start()

    // The row may be on its way into view.
    Timer {
        id: arriving
        interval: 0
        onTriggered: root.take()
    }

    Rectangle {  // beside the field, which begins where the heading does
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
            forceActiveFocus(Qt.MouseFocusReason);  // a view gives the keyboard to what becomes its current row
        }
        onEdited: root.edited(text)
        onTabPressed: event => {
            const next = root.rowIndex + (event.key === Qt.Key_Backtab ? -1 : 1);
            event.accepted = next >= 0;  // from the first row the toolkit goes back to the table
            if (event.accepted)
                root.leftFor(next);
        }

        Keys.onDownPressed: root.leftFor(root.rowIndex + 1)
        Keys.onEnterPressed: root.confirmed()
        Keys.onEscapePressed: event => {
            event.accepted = root.row.changed;
            root.reverted();
        }
        Keys.onReturnPressed: root.confirmed()
        Keys.onUpPressed: root.leftFor(root.rowIndex - 1)
    }
}
