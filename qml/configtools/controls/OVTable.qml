// A table of many rows. Columns are objects: "key" (a role of the model), "title", "width", and if wanted
// "minimumWidth", "stretch" (its share of spare room), "sortable" and "cell" (a Component of an OVTableCell).
// The model has the roles "checked", "conflict" (the row stands out) and "identity", get(row) for the values of
// a row, and rowOf(identity), by which the current row lives through a reset. Values come through get() because
// a role may bear any name, "model" among them, which delegates keep for something else. Ticks and order belong
// to the model: the table only asks for changes.
import QtQuick
import QtQuick.Templates as T
import configtools

FocusScope {
    id: root

    required property var model
    required property var columns
    property bool checkable: true
    property int checkState: Qt.Unchecked
    property string sortKey
    property int sortOrder: Qt.AscendingOrder
    property alias currentIndex: list.currentIndex
    readonly property alias count: list.count
    default property alias emptyState: emptySlot.data
    signal sortRequested(string key)
    signal allToggled(bool checked)
    signal rangeToggled(int first, int last, bool checked)
    signal copyRequested(int row)
    signal rowOpened(int row)

    readonly property int checkWidth: checkable ? 48 : 0
    property var draggedWidths: ({})
    readonly property var columnWidths: layOut(columns, draggedWidths, list.width - checkWidth)
    readonly property real rowWidth: columnWidths.reduce((sum, width) => sum + width, checkWidth)
    property int tickAnchor: -1
    property bool byPointer: false  // the focus came with a click, which needs no ring
    property string currentIdentity
    property int revision: 0  // rises when values of rows may have changed
    property real keptY: 0

    function layOut(columns, dragged, room) {
        const widths = columns.map(column => dragged[column.key] ?? column.width);
        const spare = room - widths.reduce((sum, width) => sum + width, 0);
        const shares = columns.map(column => dragged[column.key] === undefined ? column.stretch ?? 0 : 0);
        const all = shares.reduce((sum, share) => sum + share, 0);
        if (spare <= 0 || all === 0)
            return widths;
        return widths.map((width, i) => width + Math.floor(spare * shares[i] / all));
    }

    /// Makes `to` the current row; with `extend`, ticks the rows from where the extension began.
    function move(to, extend) {
        if (list.count === 0)
            return;
        const from = Math.max(0, list.currentIndex);
        const row = Math.max(0, Math.min(list.count - 1, to));
        if (extend) {
            if (tickAnchor < 0 || tickAnchor >= list.count)
                tickAnchor = from;
            rangeToggled(Math.min(tickAnchor, row), Math.max(tickAnchor, row), true);
        } else {
            tickAnchor = row;
        }
        list.currentIndex = row;
        list.positionViewAtIndex(row, ListView.Contain);
        currentIdentity = (list.itemAtIndex(row) as OVTableRow)?.identity ?? "";
    }

    function toggle(row, modifiers) {
        const extend = modifiers & Qt.ShiftModifier;
        if (!extend)
            rangeToggled(row, row, !root.model.get(row).checked);
        move(row, extend);
    }

    function takePointerFocus() {
        list.forceActiveFocus(Qt.MouseFocusReason);
        byPointer = true;
    }

    function scrollBy(x, y) {
        list.contentX = Math.max(0, Math.min(list.contentWidth - list.width, list.contentX - x));
        list.contentY = Math.max(0, Math.min(list.contentHeight - list.height, list.contentY - y));
    }

    Keys.onPressed: event => {
        const page = Math.max(1, Math.floor(list.height / Theme.rowHeight) - 1);
        const at = list.currentIndex;
        const extend = event.modifiers & Qt.ShiftModifier;
        const control = event.modifiers & Qt.ControlModifier;
        const targets = {
            [Qt.Key_Up]: at - 1, [Qt.Key_Down]: at + 1, [Qt.Key_PageUp]: at - page,
            [Qt.Key_PageDown]: at + page, [Qt.Key_Home]: 0, [Qt.Key_End]: list.count - 1
        };
        event.accepted = true;
        if (targets[event.key] !== undefined)
            move(targets[event.key], extend);
        else if (event.key === Qt.Key_Space && checkable && at >= 0)
            toggle(at, event.modifiers);
        else if (control && event.key === Qt.Key_A && checkable)
            allToggled(true);
        else if (control && event.key === Qt.Key_C && at >= 0)
            copyRequested(at);
        else if ((event.key === Qt.Key_Return || event.key === Qt.Key_Enter) && at >= 0)
            rowOpened(at);
        else
            event.accepted = false;
    }

    Rectangle {
        anchors.fill: parent
        border.color: list.activeFocus && root.activeFocus ? Theme.colours.lineStrong : Theme.colours.line
        border.width: Theme.line
        color: Theme.colours.surface
        radius: Theme.paneRadius
    }

    OVFocusRing {
        around: Theme.paneRadius
        shown: list.activeFocus && !root.byPointer
    }

    OVTableHead {
        id: head
        x: Theme.line
        y: Theme.line
        width: root.width - 2 * Theme.line
        checkState: root.checkState
        checkWidth: root.checkWidth
        columnWidths: root.columnWidths
        columns: root.columns
        rowCount: list.count
        scrolled: list.contentX
        sortKey: root.sortKey
        sortOrder: root.sortOrder
        onAllToggled: root.allToggled(root.checkState !== Qt.Checked)
        onSortRequested: key => root.sortRequested(key)
        onWidthDragged: (column, width) => {
            const kept = Object.assign({}, root.draggedWidths);
            const least = root.columns[column].minimumWidth ?? 40;
            kept[root.columns[column].key] = Math.round(Math.max(least, width));
            root.draggedWidths = kept;
        }
    }

    ListView {
        id: list


        x: Theme.line
        y: head.y + head.height
        width: root.width - 2 * Theme.line
        height: root.height - y - Theme.controlRadius
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        cacheBuffer: Theme.rowHeight * 10
        clip: true
        contentWidth: Math.max(width, root.rowWidth)
        currentIndex: -1
        flickableDirection: Flickable.HorizontalAndVerticalFlick
        focus: true
        highlightFollowsCurrentItem: false
        interactive: false  // rows are picked with the pointer, not thrown
        keyNavigationEnabled: false
        model: root.model
        reuseItems: true

        Accessible.role: Accessible.Table

        onActiveFocusChanged: root.byPointer = false

        // qmllint disable unqualified
        delegate: OVTableRow {
            width: list.contentWidth
            checkWidth: root.checkWidth
            columnWidths: root.columnWidths
            columns: root.columns
            current: index === list.currentIndex
            values: {
                root.revision;
                return root.model.get(index);
            }
            onPicked: modifiers => {
                root.takePointerFocus();
                root.move(index, modifiers & Qt.ShiftModifier);
            }
            onTickToggled: modifiers => {
                root.takePointerFocus();
                root.toggle(index, modifiers);
            }
            onOpened: root.rowOpened(index)
        }
        // qmllint enable unqualified

        T.ScrollBar.vertical: OVScrollBar {}
        T.ScrollBar.horizontal: OVScrollBar {}

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

            function onDataChanged() {
                ++root.revision;
            }
            function onModelAboutToBeReset() {
                root.keptY = list.contentY;
            }
            function onModelReset() {
                ++root.revision;
                restoring.start();
            }
        }

        // The view takes notice of the reset in its own time.
        Timer {
            id: restoring
            interval: 0
            onTriggered: list.restore()
        }

        function restore() {
            forceLayout();
            currentIndex = root.currentIdentity !== "" ? root.model.rowOf(root.currentIdentity) : -1;
            contentY = Math.max(0, Math.min(contentHeight - height, root.keptY));
        }
    }

    Item {
        id: emptySlot
        anchors.fill: list
        visible: list.count === 0
    }
}
