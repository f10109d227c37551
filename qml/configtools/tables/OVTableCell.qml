// Base of the cells of an OVTable. The row sets all properties except `value`.
import QtQuick
import configtools

Item {
    property string key            // of the column
    property var row: null         // values of the row, by key
    property int rowIndex: -1  // index of the row in the table, from 0
    property bool current: false  // the row is the current one
    property bool conflict: false  // role "conflict" of the row: the row is highlighted
    readonly property var value: row && key !== "" ? row[key] : undefined  // value of the column in this row

    /// The width in pixels of the column that shows the cell without eliding.
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
