// Problems of an ended import or export: a summary, and a table with reasons.
import QtQuick
import configtools

OVDialog {
    id: root

    property string summary  // text above the table
    required property var columns  // as in OVTable; with "figure" the digits have equal width

    /// Sets the summary and the rows; the caller opens the dialog. `list`: maps with the keys of the columns.
    function load(text, list) {
        summary = text;
        entries.setNumberedRows(list);
    }

    wantedWidth: Theme.reportWidth
    hasCancel: false
    onAccepted: close()
    onOpened: table.forceActiveFocus()

    DeviceSelection {
        id: entries
    }

    Column {
        width: parent.width
        spacing: Theme.controlGap

        OVNotice {
            width: parent.width
            iconColor: Theme.colours.warn
            iconName: "alert"
            text: root.summary
        }
        OVTable {
            id: table
            width: parent.width
            height: Theme.initialiseListHeight
            checkable: false
            columns: root.columns.map(column => column.figure ? Object.assign({cell: figureCell}, column) : column)
            model: entries
            objectName: "reportTable"
        }
    }

    Component {
        id: figureCell
        OVTableTextCell {
            font: Theme.figureFont
        }
    }
}
