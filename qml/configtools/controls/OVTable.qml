// A table of many rows. Columns are objects: "key" (a role of the model), "title", "width", and if wanted
// "minimumWidth", "stretch" (its share of spare room), "sortable" and "cell" (a Component of an OVTableCell).
// The model has the roles "checked", "conflict" (the row stands out) and "identity", get(row) for the values of
// a row, and rowOf(identity), by which the current row lives through a reset. Values come through get() because
// a role may bear any name, "model" among them, which delegates keep for something else. Ticks and order belong
// to the model: the table only asks for changes.
import QtQuick
import configtools

FocusScope {
    id: root

    required property var model
    required property var columns
    property bool checkable: true
    property int checkState: Qt.Unchecked
    property string sortKey
    property int sortOrder: Qt.AscendingOrder
    property alias currentIndex: body.currentIndex
    readonly property alias count: body.count
    default property alias emptyState: emptySlot.data
    signal sortRequested(string key)
    signal allToggled(bool checked)
    signal rangeToggled(int first, int last, bool checked)
    signal copyRequested(int row)
    signal rowOpened(int row)
    signal menuRequested(int row, var place)  // as OVEntryMenu takes it

    /// Makes a row the current one and brings it into view.
    function show(row) {
        if (row >= 0)
            body.move(row, false);
    }

    /// The keyboard acts on the rows, without the ring that a key which brought it here would draw.
    function takeFocus() {
        body.takePointerFocus();
    }

    readonly property int checkWidth: checkable ? 48 : Theme.controlGap
    property var draggedWidths: ({})
    readonly property var columnWidths: layOut(columns, draggedWidths, body.width - checkWidth)

    function layOut(columns, dragged, room) {
        const widths = columns.map(column => dragged[column.key] ?? column.width);
        const spare = room - widths.reduce((sum, width) => sum + width, 0);
        const shares = columns.map(column => dragged[column.key] === undefined ? column.stretch ?? 0 : 0);
        const all = shares.reduce((sum, share) => sum + share, 0);
        if (spare <= 0 || all === 0)
            return widths;
        return widths.map((width, i) => width + Math.floor(spare * shares[i] / all));
    }

    function drag(column, width) {
        const dragged = Object.assign({}, draggedWidths);
        dragged[columns[column].key] = Math.round(Math.max(columns[column].minimumWidth ?? 40, width));
        draggedWidths = dragged;
    }

    Rectangle {
        anchors.fill: parent
        border.color: body.activeFocus ? Theme.colours.lineStrong : Theme.colours.line
        border.width: Theme.line
        color: Theme.colours.surface
        radius: Theme.paneRadius
    }

    OVFocusRing {
        around: Theme.paneRadius
        shown: root.Window.activeFocusItem === body && !body.byPointer  // a field in a row has its own
    }

    OVTableHead {
        id: head
        x: Theme.line
        y: Theme.line
        width: root.width - 2 * Theme.line
        checkState: root.checkState
        checkWidth: root.checkWidth
        checkable: root.checkable
        columnWidths: root.columnWidths
        columns: root.columns
        rowCount: body.count
        scrolled: body.contentX
        sortKey: root.sortKey
        sortOrder: root.sortOrder
        onAllToggled: root.allToggled(root.checkState !== Qt.Checked)
        onSortRequested: key => root.sortRequested(key)
        onWidthDragged: (column, width) => root.drag(column, width)
    }

    OVTableBody {
        id: body
        x: Theme.line
        y: head.y + head.height
        width: root.width - 2 * Theme.line
        room: root.height - y - Theme.controlRadius
        checkWidth: root.checkWidth
        checkable: root.checkable
        columnWidths: root.columnWidths
        columns: root.columns
        focus: true
        model: root.model
        objectName: "tableRows"
        onAllToggled: checked => root.allToggled(checked)
        onCopyRequested: row => root.copyRequested(row)
        onMenuRequested: (row, place) => root.menuRequested(row, place)
        onRangeToggled: (first, last, checked) => root.rangeToggled(first, last, checked)
        onRowOpened: row => root.rowOpened(row)
    }

    Item {
        id: emptySlot
        x: body.x
        y: body.y
        width: body.width
        height: body.room
        visible: body.count === 0
    }
}
