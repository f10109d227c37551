// Devices in groups. Groups and devices have check boxes, devices also their last result. A click on a check box and
// the space key tick or untick the row in the model (`rows`). If `choosing`, a click or Enter requests a device by
// deviceChosen(); otherwise a click only makes it current and Enter requests its details. A double click opens or
// closes a group.
import QtQuick
import QtQuick.Templates as T
import configtools

ListView {
    id: root

    required property DeviceTreeRows rows  // the model, a flat list; not changed except for ticks and open groups
    required property var describer  // object with resultText(result, ipport), which returns the text of the tool tip
    property string busyDevice          // address and port of the device that is processed now, "" for none
    property bool choosing: false       // a device can be chosen
    property string chosenDevice        // address and port, "" for none; set by the owner
    property bool byPointer: false      // the keyboard focus came by the pointer: no focus ring
    property real keptY: 0  // contentY before a reset of the model
    // The row of the keyboard, -1 for none. `currentIndex` of the view stays -1: changing it scrolls the view, which
    // would move the row away from the pointer.
    property int cursor: -1
    property string cursorIdentity  // of that row, also while the model does not have it; "" for none
    signal deviceChosen(string ipport)  // "address:port"; also for the chosen device
    signal detailRequested(string name)  // open the details; name (identity) of the device's row
    signal menuRequested(string name, var position)  // open the menu of a device; position: see OVEntryMenu.openAt()

    /// Makes the row current, without scrolling.
    function moveCursor(row) {
        cursor = row;
        cursorIdentity = rows.identityAt(row);
    }

    /// Takes the keyboard focus and makes the row with this identity current. Returns the row, -1 if it does not exist.
    function selectRow(identity) {
        const row = rows.rowOf(identity);
        if (row >= 0)
            moveCursor(row);
        forceActiveFocus(Qt.MouseFocusReason);
        byPointer = true;
        return row;
    }

    /// Makes the row current and scrolls to it.
    function moveIntoView(row) {
        moveCursor(row);
        positionViewAtIndex(row, ListView.Contain);
    }

    /// Opens the menu of the current device. A group has none.
    function openMenu(position) {
        const name = rows.nameAt(cursor);
        if (name !== "")
            menuRequested(name, position);
    }

    /// Enter in the current row: chooses the device or requests its details. Ignored for a group.
    function open() {
        if (choosing && rows.deviceAt(cursor) !== "")
            deviceChosen(rows.deviceAt(cursor));
        else if (!choosing && rows.nameAt(cursor) !== "")
            detailRequested(rows.nameAt(cursor));
    }

    /// Scrolls by a distance in pixels, within the content; positive: towards the start.
    function scrollBy(by) {
        contentY = Math.max(0, Math.min(contentHeight - height, contentY - by));
    }

    activeFocusOnTab: true
    boundsBehavior: Flickable.StopAtBounds
    cacheBuffer: 0  // rows created ahead would be read after a rebuild has removed them
    clip: true
    currentIndex: -1
    highlightFollowsCurrentItem: false
    interactive: false
    keyNavigationEnabled: false
    model: rows
    reuseItems: true

    Accessible.role: Accessible.Tree

    onActiveFocusChanged: {
        if (!focus)  // `focus` remains while a popup is open
            byPointer = false;
        if (activeFocus && cursor < 0 && count > 0)
            moveCursor(Math.min(count - 1, Math.ceil(contentY / Theme.controlHeight)));
    }

    OVTypeAhead {
        id: typeAhead
        onTyped: (text, begins) => {
            const row = root.rows.rowStarting(text, root.cursor + (begins ? 1 : 0));
            if (row >= 0)
                root.moveIntoView(row);
        }
    }

    Keys.onPressed: event => {
        const page = Math.max(1, Math.floor(height / Theme.controlHeight) - 1);
        const targets = {
            [Qt.Key_Up]: cursor - 1, [Qt.Key_Down]: cursor + 1, [Qt.Key_PageUp]: cursor - page,
            [Qt.Key_PageDown]: cursor + page, [Qt.Key_Home]: 0, [Qt.Key_End]: count - 1
        };
        event.accepted = true;
        if (targets[event.key] !== undefined && count > 0) {
            moveIntoView(Math.max(0, Math.min(count - 1, targets[event.key])));
        } else if (typeAhead.isMenuKey(event)) {
            const y = (cursor + 1) * Theme.controlHeight - contentY;
            openMenu({item: root, x: 2 * Theme.treeIndent, y: y, byKey: true});
        } else if (event.key === Qt.Key_A && (event.modifiers & Qt.ControlModifier)) {
            rows.tree.setAllChecked(true);
        } else if (typeAhead.take(event)) {
            return;
        } else if (event.key === Qt.Key_Space && cursor >= 0) {
            rows.toggleTick(cursor);
        } else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter) {
            open();
        } else if (event.key === Qt.Key_Right && cursor >= 0) {
            rows.setOpen(cursor, true);
        } else if (event.key === Qt.Key_Left && cursor >= 0) {
            const group = rows.groupRowOf(cursor);
            if (group === cursor)
                rows.setOpen(group, false);
            moveIntoView(group);
        } else {
            event.accepted = false;
        }
    }

    // qmllint disable unqualified
    delegate: OVTreeRow {
        width: root.width
        busy: !isGroup && root.busyDevice !== "" && title === root.busyDevice
        chosen: root.choosing && !isGroup && title === root.chosenDevice
        choosing: root.choosing
        current: index === root.cursor && root.activeFocus
        describer: root.describer
        onMenuRequested: (identity, x, y) => {
            root.selectRow(identity);
            root.openMenu({item: root, x: x, y: y - root.contentY, byKey: false});
        }
        onOpenToggled: identity => root.rows.toggleOpen(root.selectRow(identity))
        onClicked: identity => {
            const device = root.rows.deviceAt(root.selectRow(identity));
            if (root.choosing && device !== "")
                root.deviceChosen(device);
        }
        onTickToggled: identity => root.rows.toggleTick(root.selectRow(identity))
    }
    // qmllint enable unqualified

    T.ScrollBar.vertical: OVScrollBar {}

    WheelHandler {
        acceptedDevices: PointerDevice.AllDevices
        property: ""
        onWheel: event => root.scrollBy(event.pixelDelta.y || event.angleDelta.y * 3 * Theme.controlHeight / 120)
    }

    Connections {
        target: root.rows

        function onModelAboutToBeReset() {
            root.keptY = root.contentY;
        }
        function onModelReset() {
            restoring.start();
        }
    }

    // The view processes a reset later.
    Timer {
        id: restoring
        interval: 0
        onTriggered: {
            root.forceLayout();
            root.cursor = root.cursorIdentity === "" ? -1 : root.rows.rowOf(root.cursorIdentity);
            root.contentY = Math.max(0, Math.min(root.contentHeight - root.height, root.keptY));
        }
    }
}
