// Stores columns and sort order of a device table in the settings: restores both when the page is created, and passes
// each later change to `memory`. A stored order by an unknown or unsortable column is ignored.
import QtQuick
import QtQml
import configtools

Item {
    id: root

    required property var memory  // a ViewMemory; null: nothing is stored
    required property string name  // prefix of the names of both texts in the settings, such as "device"
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
