// The rows of an OVTable, with mouse and keyboard input. Rows are created and read in small numbers between two frames,
// so that a large table does not block the window. For columns, model and signals see OVTable.
import QtQuick
import QtQuick.Templates as T
import configtools

ListView {
    id: root

    required property var columns  // the shown ones
    required property var columnWidths  // in pixels, parallel to `columns`
    required property bool checkable
    required property int checkWidth  // room before the first column, for the check boxes
    readonly property real rowWidth: columnWidths.reduce((sum, width) => sum + width, checkWidth)
    property bool byPointer: false  // the keyboard focus came by the pointer: no focus ring
    property int tickAnchor: -1  // row where an extended selection begins, -1 for none
    property string currentIdentity  // of the current row, also while the model does not have it; "" for none
    property real keptY: 0  // contentY before a reset of the model
    required property real room  // height for the rows in pixels; a new table is filled over several frames
    property int filled: rowsAFrame  // the view has height for this number of rows; grows with each frame up to `room`
    property var changedRows: []  // indices of rows to read again
    property int readsLeft: rowsAFrame  // reads left before the next frame
    readonly property int rowsAFrame: 5  // created or read between two frames
    signal allToggled(bool checked)  // tick all rows, by Ctrl+A; always true
    signal rangeToggled(int first, int last, bool checked)  // tick or untick the rows from first to last, both included
    signal copyRequested(int row)  // Ctrl+C
    signal rowActivated(int row)  // by a double click or Enter
    signal menuRequested(int row, var position)  // open the menu of the row; position: see OVEntryMenu.openAt()

    /// Makes the row `to` current, within the valid rows, and scrolls to it. With `extend`, also requests to tick all
    /// rows between `to` and the last row that became current without `extend`.
    function move(to, extend) {
        if (count === 0)
            return;
        const from = Math.max(0, currentIndex);
        const row = Math.max(0, Math.min(count - 1, to));
        if (extend) {
            if (tickAnchor < 0 || tickAnchor >= count)
                tickAnchor = from;
            rangeToggled(Math.min(tickAnchor, row), Math.max(tickAnchor, row), true);
        } else {
            tickAnchor = row;
        }
        currentIndex = row;
        positionViewAtIndex(row, ListView.Contain);
        currentIdentity = (itemAtIndex(row) as OVTableRow)?.identity ?? "";
    }

    /// Takes the keyboard focus and makes the row with this identity current, if it exists. `modifiers` are those of
    /// the click: Shift extends, see move().
    function selectRow(identity, modifiers) {
        takePointerFocus();
        const row = model.rowOf(identity);
        if (row >= 0)
            move(row, modifiers & Qt.ShiftModifier);
    }

    /// Requests the other check state of a row and makes it current; with Shift, see move() with `extend`.
    function toggle(row, modifiers) {
        const extend = modifiers & Qt.ShiftModifier;
        if (!extend)
            rangeToggled(row, row, !model.get(row).checked);
        move(row, extend);
    }

    /// Requests the menu of the current row, below it; without a current row, of the first one.
    function openMenuByKey() {
        if (currentIndex < 0)
            move(0, false);
        positionViewAtIndex(currentIndex, ListView.Contain);
        const y = (currentIndex + 1) * Theme.rowHeight - contentY;
        menuRequested(currentIndex, {item: root, x: checkWidth, y: y, byKey: true});
    }

    /// Takes the keyboard focus without a focus ring.
    function takePointerFocus() {
        forceActiveFocus(Qt.MouseFocusReason);
        byPointer = true;
    }

    /// The width in pixels of a column that shows all created rows (in view or near it) without eliding.
    function fittingWidth(column) {
        let width = 0;
        for (let row = 0; row < count; ++row) {
            const item = itemAtIndex(row) as OVTableRow;  // null if not in view
            if (item)
                width = Math.max(width, item.fittingWidth(column));
        }
        return width;
    }

    /// Scrolls by a distance in pixels, within the content; positive: towards the start.
    function scrollBy(x, y) {
        contentX = Math.max(0, Math.min(contentWidth - width, contentX - x));
        contentY = Math.max(0, Math.min(contentHeight - height, contentY - y));
    }

    /// Scrolls horizontally until the range from `left` (in the content), `extent` pixels wide, is in view.
    function showAcross(left, extent) {
        contentX = Math.max(Math.min(contentX, left), Math.min(left, left + extent - width));
    }

    /// Restores the current row and the scroll position after a reset of the model.
    function restore() {
        forceLayout();
        currentIndex = currentIdentity !== "" ? model.rowOf(currentIdentity) : -1;
        contentY = Math.max(0, Math.min(contentHeight - height, keptY));
    }

    /// The values of the rows from first to last have changed. Rows near the view are read now, or between the next
    /// frames if they are many; the others are read when they come into view.
    function noteChanged(first, last) {
        const from = Math.max(first, Math.floor((contentY - cacheBuffer) / Theme.rowHeight) - 1);
        const to = Math.min(last, Math.ceil((contentY + room + cacheBuffer) / Theme.rowHeight) + 1);
        const rows = new Set(changedRows);
        for (let row = from; row <= to; ++row) {
            if (rows.size === 0 && readsLeft > 0)
                read(row);
            else
                rows.add(row);
        }
        changedRows = Array.from(rows);
    }

    /// Makes a row read its values again, if it is created.
    function read(row) {
        --readsLeft;
        (itemAtIndex(row) as OVTableRow)?.read();
    }

    height: Math.min(room, filled * Theme.rowHeight)
    activeFocusOnTab: true
    boundsBehavior: Flickable.StopAtBounds
    cacheBuffer: Theme.rowHeight * 3  // one wheel notch; a row takes half a megabyte
    clip: true
    contentWidth: Math.max(width, rowWidth)
    currentIndex: -1
    flickableDirection: Flickable.HorizontalAndVerticalFlick
    highlightFollowsCurrentItem: false
    interactive: false  // no flicking
    keyNavigationEnabled: false
    reuseItems: true

    Accessible.role: Accessible.Table
    Accessible.name: columns.map(column => column.title.trim()).filter(title => title !== "").join(", ")

    onActiveFocusChanged: if (!activeFocus) byPointer = false
    onCountChanged: if (count === 0) filled = rowsAFrame

    FrameAnimation {
        running: root.count > 0 && root.height < root.room
        onTriggered: root.filled += root.rowsAFrame
    }
    FrameAnimation {
        running: root.changedRows.length > 0 || root.readsLeft < root.rowsAFrame
        onTriggered: {
            root.readsLeft = root.rowsAFrame;
            const rows = root.changedRows.slice(0, root.rowsAFrame);
            root.changedRows = root.changedRows.slice(root.rowsAFrame);
            rows.forEach(row => root.read(row));
        }
    }

    OVTypeAhead {
        id: typeAhead
        onTyped: (text, begins) => {
            const row = root.model.rowStarting ? root.model.rowStarting(text, root.currentIndex + (begins ? 1 : 0)) : -1;
            if (row >= 0)
                root.move(row, false);
        }
    }

    Keys.onPressed: event => {
        const holder = root.Window.activeFocusItem;
        const own = holder === root || holder === root.currentItem;  // a field in a row handles its keys itself
        const page = Math.max(1, Math.floor(height / Theme.rowHeight) - 1);
        const extend = event.modifiers & Qt.ShiftModifier;
        const control = event.modifiers & Qt.ControlModifier;
        const targets = {
            [Qt.Key_Up]: currentIndex - 1, [Qt.Key_Down]: currentIndex + 1, [Qt.Key_PageUp]: currentIndex - page,
            [Qt.Key_PageDown]: currentIndex + page, [Qt.Key_Home]: 0, [Qt.Key_End]: count - 1
        };
        event.accepted = true;
        if (targets[event.key] !== undefined)
            move(targets[event.key], extend);
        else if (typeAhead.isMenuKey(event) && count > 0)
            openMenuByKey();
        else if (own && typeAhead.take(event))
            return;
        else if (event.key === Qt.Key_Space && checkable && currentIndex >= 0)
            toggle(currentIndex, event.modifiers);
        else if (control && event.key === Qt.Key_A && checkable)
            allToggled(true);
        else if (control && event.key === Qt.Key_C && currentIndex >= 0)
            copyRequested(currentIndex);
        else if (own && (event.key === Qt.Key_Return || event.key === Qt.Key_Enter) && currentIndex >= 0)
            rowActivated(currentIndex);
        else
            event.accepted = false;
    }

    // qmllint disable unqualified
    delegate: OVTableRow {
        width: root.contentWidth
        checkWidth: root.checkWidth
        checkable: root.checkable
        columnWidths: root.columnWidths
        columns: root.columns
        current: index === root.currentIndex
        values: {
            readings;
            return root.model.get(index);
        }
        onMenuRequested: (identity, x, y) => {
            root.selectRow(identity, Qt.NoModifier);
            const row = root.model.rowOf(identity);
            if (row >= 0)
                root.menuRequested(row, {item: root, x: x - root.contentX, y: y - root.contentY, byKey: false});
        }
        onClicked: (identity, modifiers) => root.selectRow(identity, modifiers)
        onTickToggled: (identity, modifiers) => {
            root.takePointerFocus();
            const row = root.model.rowOf(identity);
            if (row >= 0)
                root.toggle(row, modifiers);
        }
        onDoubleClicked: identity => {
            const row = root.model.rowOf(identity);
            if (row >= 0)
                root.rowActivated(row);
        }
    }
    // qmllint enable unqualified

    T.ScrollBar.vertical: OVScrollBar {}
    T.ScrollBar.horizontal: OVScrollBar {
        visible: root.count > 0 && size < 1.0
    }

    WheelHandler {
        acceptedDevices: PointerDevice.AllDevices
        property: ""
        onWheel: event => {
            const lines = 3 * Theme.rowHeight / 120;
            const y = event.pixelDelta.y || event.angleDelta.y * lines;
            const x = event.pixelDelta.x || event.angleDelta.x * lines;
            if (event.modifiers & Qt.ShiftModifier)
                root.scrollBy(y, 0);
            else
                root.scrollBy(x, y);
        }
    }

    Connections {
        target: root.model
        ignoreUnknownSignals: true

        function onDataChanged(topLeft, bottomRight) {
            root.noteChanged(topLeft.row, bottomRight.row);  // a batch changes thousands of rows one by one
        }
        function onRowsInserted() {
            // A search clears and refills the table: the current row may be back.
            if (root.currentIndex < 0 && root.currentIdentity !== "")
                root.currentIndex = root.model.rowOf(root.currentIdentity);
        }
        function onModelAboutToBeReset() {
            root.keptY = root.contentY;
        }
        function onModelReset() {
            root.changedRows = [];
            restoring.start();
        }
    }

    // The view processes a reset later.
    Timer {
        id: restoring
        interval: 0
        onTriggered: root.restore()
    }
}
