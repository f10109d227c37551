// Stores columns and sort order of a device table: restores both when the page is created, and keeps each later change.
// Text of an unknown or unsortable column is ignored.
import QtQuick
import QtQml
import configtools

Item {
    id: root

    required property var memory  // a ViewMemory; null: nothing is stored
    required property string name  // name of the table in the settings
    required property OVTable table
    required property DeviceTableModel model

    readonly property string columnsName: name + "Columns"
    readonly property string orderName: name + "Order"

    /// The sort key, with the prefix "-" for descending order; "" for the order of the list.
    function orderText() {
        return (model.sortOrder === Qt.DescendingOrder ? "-" : "") + model.sortKey;
    }

    /// Sorts the table by a text of orderText(). Does nothing if the table has no such sortable column.
    function restoreOrder(text) {
        const key = text.replace(/^-/, "");
        if (table.columns.some(column => column.key === key && (column.sortable ?? false)))
            model.setSort(key, key === text ? Qt.AscendingOrder : Qt.DescendingOrder);
    }

    visible: false
    Component.onCompleted: {
        table.columnsText = memory?.text(columnsName) ?? "";
        restoreOrder(memory?.text(orderName) ?? "");
    }

    Connections {
        target: root.table

        function onColumnsTextChanged() {
            root.memory?.keep(root.columnsName, root.table.columnsText);
        }
    }
    Connections {
        target: root.model

        function onSortChanged() {
            root.memory?.keep(root.orderName, root.orderText());
        }
    }
}
