// Devices in groups, each with a tick and the result of what was last done with it. `rows` are DeviceTreeRows.
// Where one device is worked on, a click or Enter chooses it.
import QtQuick
import QtQuick.Templates as T
import configtools

ListView {
    id: root

    required property DeviceTreeRows rows
    required property var describer  // its wordOfResult() names a result
    property string busyDevice          // the one that something is done with just now
    property bool choosing: false       // one device can be chosen
    property string chosenDevice
    property bool byPointer: false      // the focus came with a click, which needs no ring
    property real keptY: 0
    signal deviceChosen(string ipport)

    function pick(row) {
        forceActiveFocus(Qt.MouseFocusReason);
        byPointer = true;
        currentIndex = row;
    }

    function scrollBy(by) {
        contentY = Math.max(0, Math.min(contentHeight - height, contentY - by));
    }

    activeFocusOnTab: true
    boundsBehavior: Flickable.StopAtBounds
    cacheBuffer: 0  // rows that are made in advance are asked for still when a rebuild has taken them away
    clip: true
    currentIndex: -1
    highlightFollowsCurrentItem: false
    interactive: false
    keyNavigationEnabled: false
    model: rows
    reuseItems: true

    Accessible.role: Accessible.Tree

    onActiveFocusChanged: {
        if (!focus)  // it keeps the focus of its page while something lies over that
            byPointer = false;
        if (activeFocus && currentIndex < 0 && count > 0)
            currentIndex = 0;
    }

    Keys.onPressed: event => {
        const page = Math.max(1, Math.floor(height / Theme.controlHeight) - 1);
        const targets = {
            [Qt.Key_Up]: currentIndex - 1, [Qt.Key_Down]: currentIndex + 1, [Qt.Key_PageUp]: currentIndex - page,
            [Qt.Key_PageDown]: currentIndex + page, [Qt.Key_Home]: 0, [Qt.Key_End]: count - 1
        };
        event.accepted = true;
        if (targets[event.key] !== undefined && count > 0) {
            currentIndex = Math.max(0, Math.min(count - 1, targets[event.key]));
            positionViewAtIndex(currentIndex, ListView.Contain);
        } else if (event.key === Qt.Key_Space && currentIndex >= 0) {
            rows.toggleTick(currentIndex);
        } else if (choosing && (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)) {
            const row = itemAtIndex(currentIndex);
            if (row && !row.isGroup)
                deviceChosen(row.title);
        } else if (event.key === Qt.Key_Right && currentIndex >= 0) {
            rows.setOpen(currentIndex, true);
        } else if (event.key === Qt.Key_Left && currentIndex >= 0) {
            const group = rows.groupRowOf(currentIndex);
            if (group === currentIndex)
                rows.setOpen(group, false);
            currentIndex = group;
            positionViewAtIndex(group, ListView.Contain);
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
        current: index === root.currentIndex && root.activeFocus
        describer: root.describer
        onOpenToggled: {
            root.pick(index);
            root.rows.setOpen(index, !isOpen);
        }
        onPicked: {
            root.pick(index);
            if (root.choosing && !isGroup)
                root.deviceChosen(title);
        }
        onTickToggled: {
            root.pick(index);
            root.rows.toggleTick(index);
        }
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

    // The view takes notice of a reset in its own time.
    Timer {
        id: restoring
        interval: 0
        onTriggered: {
            root.forceLayout();
            root.contentY = Math.max(0, Math.min(root.contentHeight - root.height, root.keptY));
        }
    }
}
