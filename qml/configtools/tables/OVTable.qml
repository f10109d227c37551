// A table. Columns are objects with "key" (a key of the values of a row), "title", "width" and optionally (widths in
// pixels):
// - "minimumWidth": minimum when the user resizes the column, 40 by default
// - "stretch": number, the share of spare room that the column gets, up to "mostWidth"
// - "leastWidth": minimum if room is short; columns with "stretch" shrink first. Without it only those with "stretch"
//   shrink, to Theme.columnLeast.
// - "sortable": bool, a click on the title requests a sorting
// - "cell": Component of an OVTableCell, by default an OVTableTextCell
// - "hidden": bool, not shown by default
// - "fixed": bool, always shown, after all others
// A column whose width the user has set keeps it. The user chooses and moves columns only in an `arrangeable` table.
// The model has the roles "checked" (bool), "conflict" (bool, highlights the row) and "identity" (a unique string),
// get(row), which returns the values of a row by key, and rowOf(identity), which returns -1 for an unknown row; the
// table uses it to restore the current row after a reset. Values are read by get(), as role names such as "model" are
// reserved in delegates. In a checkable table they include "checked", and optionally "absent" (bool: the row is greyed
// and has no check box). If the model has rowStarting(text, from), typed text selects the row that it returns (-1 for
// none): the first match from the row `from` on, then from the first row on. The model owns check states and order: the
// table only requests changes of both.
import QtQuick
import configtools

FocusScope {
    id: root

    required property var model  // see above
    required property var columns  // array of all columns in default order
    property bool arrangeable: false  // the user may choose and move the columns
    /// The columns as the user has arranged them: order, hidden ones and widths, as text. "" for the default
    /// arrangement. The owner stores and restores it.
    property alias columnsText: arrangement.text
    property bool checkable: true  // the rows have check boxes
    property int checkState: Qt.Unchecked  // a Qt::CheckState for all rows, set by the owner
    property string sortKey  // key of the sorted column, set by the owner; "" for none
    property int sortOrder: Qt.AscendingOrder  // a Qt::SortOrder, set by the owner
    property alias currentIndex: body.currentIndex  // row, -1 for none; use show() to set it
    readonly property alias count: body.count  // number of rows
    default property alias emptyState: emptySlot.data  // shown while the table has no rows
    signal sortRequested(string key)  // by a click on the title of a sortable column, also of the sorted one
    signal allToggled(bool checked)  // the requested check state of all rows
    signal rangeToggled(int first, int last, bool checked)  // the rows from first to last, both included
    signal copyRequested(int row)  // Ctrl+C in the current row
    signal rowActivated(int row)  // by a double click or Enter
    signal menuRequested(int row, var position)  // open the menu of the row; position: for OVEntryMenu.openAt()

    /// Makes a row current and scrolls to it; ignores a negative row. A row after the last one means the last one.
    function show(row) {
        if (row >= 0)
            body.move(row, false);
    }

    /// Makes no row current.
    function showNone() {
        body.currentIdentity = "";
        body.currentIndex = -1;
    }

    /// Gives the rows the keyboard focus without a focus ring.
    function takeFocus() {
        body.takePointerFocus();
    }

    readonly property int checkWidth: checkable ? 48 : Theme.controlGap  // room before the first column, in pixels
    readonly property var shownColumns: Array.from(arrangement.shown)
        .map(key => columns.find(column => column.key === key)).filter(column => column !== undefined)
    readonly property var columnWidths: layOut(shownColumns, arrangement.widths, body.width - checkWidth)

    /// The width of each column for a table of the width `room`. `chosen` has the widths that the user has set, by key:
    /// these are kept. Spare room goes to the columns with "stretch".
    function layOut(columns, chosen, room) {
        const widths = columns.map(column => chosen[column.key] ?? column.width);
        const spare = room - widths.reduce((sum, width) => sum + width, 0);
        const shares = columns.map(column => chosen[column.key] === undefined ? column.stretch ?? 0 : 0);
        if (spare < 0)
            return shrink(columns, widths, shares, columns.map((column, i) =>
                chosen[column.key] === undefined ? column.leastWidth ?? widths[i] : widths[i]), -spare);
        const all = shares.reduce((sum, share) => sum + share, 0);
        if (spare === 0 || all === 0)
            return widths;
        return widths.map((width, i) => shares[i] === 0 ? width
            : Math.max(width, Math.min(columns[i].mostWidth ?? Infinity, width + Math.floor(spare * shares[i] / all))));
    }

    /// The widths without `missing` pixels, taken from the columns with "stretch" (those with a share above 0), then
    /// from all columns down to their `leastWidths`. If that is not enough, the table scrolls.
    function shrink(columns, widths, shares, leastWidths, missing) {
        const first = giveWay(widths, widths.map((width, i) => shares[i] > 0 ? columns[i].leastWidth ?? Theme.columnLeast : width), missing);
        return giveWay(first, leastWidths, missing - widths.reduce((sum, width, i) => sum + width - first[i], 0));
    }

    /// The widths without `missing` pixels, each in proportion to its distance to its least width, but not below that.
    function giveWay(widths, leastWidths, missing) {
        const gives = widths.map((width, i) => Math.max(0, width - leastWidths[i]));
        const all = gives.reduce((sum, give) => sum + give, 0);
        const part = all > 0 ? Math.max(0, Math.min(1, missing / all)) : 0;
        return widths.map((width, i) => width - Math.ceil(gives[i] * part));
    }

    /// Sets the width of a shown column for the user, at least its "minimumWidth".
    function setWidth(column, width) {
        const least = shownColumns[column].minimumWidth ?? 40;
        arrangement.setWidth(shownColumns[column].key, Math.round(Math.max(least, width)));
    }

    /// Sets the width of a shown column so that its title and the rows in view are not elided, up to Theme.columnMost.
    function fit(column) {
        setWidth(column, Math.min(Theme.columnMost, Math.max(head.fittingWidth(column), body.fittingWidth(column))));
    }

    /// Opens the menu that shows and hides columns. `column` is the index of the shown column under the pointer, -1 for
    /// none; `position` see OVEntryMenu.openAt().
    function openColumnMenu(column, position) {
        const entries = columns.filter(column => !(column.fixed ?? false)).map(column => ({
            key: column.key, text: column.title, checked: arrangement.isShown(column.key),
            enabled: !arrangement.isShown(column.key) || arrangement.canHide(column.key)
        }));
        entries.push({key: "fitColumn", startsGroup: true, text: qsTr("列宽适合内容"), enabled: column >= 0},
                     {key: "resetColumns", text: qsTr("恢复默认列"), enabled: arrangement.text !== ""});
        const menu = columnMenu.instance();
        menu.column = column;
        menu.byKey = position.byKey;
        menu.openAt(entries, position);
    }

    /// Runs an entry of the menu of columns: "resetColumns", "fitColumn", or a column to show or hide.
    function takeFromMenu(key, menu) {
        if (key === "resetColumns")
            arrangement.reset();
        else if (key === "fitColumn")
            fit(menu.column);
        else
            arrangement.setShown(key, !arrangement.isShown(key));
        if (menu.byKey)
            Qt.callLater(head.focusColumn, menu.column);  // the heads may have been created again
    }

    TableColumns {
        id: arrangement
        keys: root.columns.map(column => column.key)
        hiddenKeys: root.columns.filter(column => column.hidden ?? false).map(column => column.key)
        fixedKeys: root.columns.filter(column => column.fixed ?? false).map(column => column.key)
    }

    // qmllint disable unqualified
    OVOnDemand {
        id: columnMenu
        visible: false
        sourceComponent: OVEntryMenu {
            id: menu
            property int column: -1  // column of the click, -1 for none
            property bool byKey: false
            objectName: "columnMenu"
            onChosen: key => root.takeFromMenu(key, menu)
        }
    }
    // qmllint enable unqualified

    Rectangle {
        anchors.fill: parent
        border.color: body.activeFocus ? Theme.colours.lineStrong : Theme.colours.line
        border.width: Theme.line
        color: Theme.colours.surface
        radius: Theme.paneRadius
    }

    OVFocusRing {
        around: Theme.paneRadius
        shown: root.Window.activeFocusItem === body && !body.byPointer  // a field in a row has a separate ring
    }

    OVTableHead {
        id: head
        x: Theme.line
        y: Theme.line
        width: root.width - 2 * Theme.line
        arrangeable: root.arrangeable
        checkState: root.checkState
        checkWidth: root.checkWidth
        checkable: root.checkable
        columnWidths: root.columnWidths
        columns: root.shownColumns
        rowCount: body.count
        scrolled: body.contentX
        sortKey: root.sortKey
        sortOrder: root.sortOrder
        onAllToggled: root.allToggled(root.checkState !== Qt.Checked)
        onColumnReached: column => body.showAcross(head.leftOf(column) + body.contentX, root.columnWidths[column])
        onColumnMoved: (key, index) => arrangement.move(key, index)
        onFitRequested: column => root.fit(column)
        onMenuRequested: (column, position) => root.openColumnMenu(column, position)
        onSortRequested: key => root.sortRequested(key)
        onWidthChosen: (column, width) => root.setWidth(column, width)
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
        columns: root.shownColumns
        focus: true
        model: root.model
        objectName: "tableRows"
        onAllToggled: checked => root.allToggled(checked)
        onCopyRequested: row => root.copyRequested(row)
        onMenuRequested: (row, position) => root.menuRequested(row, position)
        onRangeToggled: (first, last, checked) => root.rangeToggled(first, last, checked)
        onRowActivated: row => root.rowActivated(row)
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
