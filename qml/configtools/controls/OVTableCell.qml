// What a cell of an OVTable knows. Cells of a column with a look of its own derive from it.
import QtQuick
import configtools

Item {
    property string key
    property var row: null         // the values of the row by their keys
    property int rowIndex: -1
    property bool current: false
    property bool conflict: false
    readonly property var value: row && key !== "" ? row[key] : undefined

    /// The width of the column in which nothing of the cell is cut.
    function fittingWidth() {
        let right = 0;
        for (let i = 0; i < children.length; ++i) {
            const child = children[i];
            if (child.visible)
                right = Math.max(right, child.x + (child.implicitWidth > 0 ? child.implicitWidth : child.width));
        }
        return right + Theme.unit;
    }
}
