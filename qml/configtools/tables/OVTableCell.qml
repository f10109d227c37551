// Base of the cells of an OVTable.
import QtQuick
import configtools

Item {
    property string key
    property var row: null         // values of the row, by key
    property int rowIndex: -1
    property bool current: false
    property bool conflict: false
    readonly property var value: row && key !== "" ? row[key] : undefined

    /// The width of the column that shows the cell without eliding.
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
