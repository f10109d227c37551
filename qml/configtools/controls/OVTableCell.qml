// What a cell of an OVTable knows. Cells of a column with a look of its own derive from it.
import QtQuick

Item {
    property string key
    property var row: null         // the values of the row by their keys
    property int rowIndex: -1
    property bool current: false
    property bool conflict: false
    readonly property var value: row && key !== "" ? row[key] : undefined
}
