// A grid of 1, 4 or 9 live views, one of which can be enlarged. A view among others shows the sub stream, a single or
// enlarged one the main stream; the views behind an enlarged one have no stream. The channels can belong to several
// devices: the first device (LiveDevice) and added ones (LiveCompanion). Unless stated otherwise, a channel is an index
// in `channels`.
import QtQuick
import configtools

Item {
    id: root

    required property bool active  // streams may run; those of an added device also need its session
    /// The channels, and the channel index of each cell, -1 for an empty cell. Both change in one assignment, so that a
    /// stream continues when its channel moves in the list.
    property var arrangement: ({channels: [], shown: []})
    readonly property var channels: arrangement.channels
    readonly property var shownChannels: arrangement.shown
    property int cellCount: 1  // 1, 4 or 9
    property int currentCell: 0  // from 0
    property int enlargedCell: -1  // -1 for none
    property bool stretched: false  // videos fill their views, without their aspect ratio
    property bool sounding: false  // the current cell plays its sound
    property bool figuresShown: false  // the views show LiveFigures
    readonly property int currentChannel: shownChannels[currentCell] ?? -1  // -1: the cell is empty
    readonly property var currentEntry: channels[currentChannel] ?? null  // element of `channels`; null for none
    /// Number of pages of channels, at least 1.
    readonly property int pages: Math.max(1, Math.ceil(channels.length / cellCount))
    property int page: 0  // from 0; as chosen by showPage()
    /// Before a stream of the first device starts: the owner checks the device, then calls takeCheckResult(null, ...).
    signal checkRequested
    signal failed  // a stream of the first device failed, or could not start as the device does not respond
    signal frameReceived  // the first frame of a stream of the first device

    /// Replaces `channels` and adjusts the page. Its elements are maps with "ipport", "channel" (of the device, from
    /// 0), "name", "connected", "caption" (text in the view) and "companion" (a LiveCompanion, null for the first
    /// device). The cells keep their channels; the cell of a removed one becomes empty.
    function adopt(channels) {
        const nameOf = entry => entry.ipport + "/" + entry.channel;
        const indexOf = {};
        channels.forEach((entry, index) => indexOf[nameOf(entry)] = index);
        const before = arrangement;
        arrangement = {
            channels: channels,
            shown: before.shown.map(index => index < 0 ? -1 : indexOf[nameOf(before.channels[index])] ?? -1)
        };
        page = Math.min(page, pages - 1);
    }

    /// Sets the channel of each cell, -1 for an empty one.
    function show(shown) {
        arrangement = {channels: channels, shown: shown};
    }

    /// Fills the cells with the channels from `wanted` * cellCount on. The page is limited to the valid ones. The first
    /// cell becomes current, and no view is enlarged.
    function showPage(wanted) {
        page = Math.max(0, Math.min(pages - 1, wanted));
        const first = page * cellCount;
        show(Array.from({length: cellCount}, (_, cell) => first + cell < channels.length ? first + cell : -1));
        currentCell = 0;
        enlargedCell = -1;
    }

    /// Changes the number of cells and shows the page with the current channel, whose cell becomes current.
    function arrange(count) {
        const channel = Math.max(0, currentChannel);
        cellCount = count;
        showPage(Math.floor(channel / count));
        currentCell = Math.max(0, shownChannels.indexOf(channel));
    }

    /// Shows these channels after the present ones, with more cells if necessary; those beyond the ninth are not shown.
    /// With more cells, the page becomes the one with the first channel of the present page.
    function include(wanted) {
        const shown = shownChannels.filter(channel => channel >= 0);
        const together = shown.concat(wanted.filter(channel => !shown.includes(channel)));
        const count = together.length <= 1 ? 1 : together.length <= 4 ? 4 : 9;
        enlargedCell = -1;
        const first = page * cellCount;
        cellCount = Math.max(cellCount, count);
        page = Math.min(pages - 1, Math.floor(first / cellCount));
        show(Array.from({length: cellCount}, (_, cell) => together[cell] ?? -1));
    }

    /// Makes the cell current that shows the channel; if a view is enlarged, this one is enlarged instead. If no cell
    /// shows the channel, it is shown in the current cell.
    function showChannel(channel) {
        const cell = shownChannels.indexOf(channel);
        if (cell >= 0) {
            currentCell = cell;
            if (enlargedCell >= 0)
                enlargedCell = cell;
            return;
        }
        if (cellCount === 1) {
            showPage(channel);
            return;
        }
        const changed = Array.from(shownChannels);
        changed[currentCell] = channel;
        show(changed);
    }

    /// As showChannel(); also enlarges the cell if there are several.
    function enlarge(channel) {
        showChannel(channel);
        if (cellCount > 1)
            enlargedCell = currentCell;
    }

    /// Calls `action` with each player that shows a channel of the device with this LiveCompanion; null: of the first
    /// device, and the empty cells.
    function eachPlayerOf(companion, action) {
        for (let cell = 0; cell < players.count; ++cell) {
            const player = players.itemAt(cell);
            if ((player.entry?.companion ?? null) === companion)
                action(player);
        }
    }

    /// Starts the streams of the device again, in its new session. `companion`: see eachPlayerOf().
    function reconnect(companion) {
        eachPlayerOf(companion, player => player.reconnect());
    }

    /// Passes the result of a check to the streams of the device that wait for it.
    function takeCheckResult(companion, isReachable) {
        eachPlayerOf(companion, player => player.takeCheckResult(isReachable));
    }

    readonly property int columns: Math.round(Math.sqrt(cellCount))
    readonly property real cellWidth: Math.floor((width - (columns - 1) * Theme.half) / columns)
    readonly property real cellHeight: Math.floor((height - (columns - 1) * Theme.half) / columns)

    /// Shows the first channels of a new device: one cell for a single channel, otherwise four.
    function begin() {
        cellCount = channels.length <= 1 ? 1 : 4;
        showPage(0);
    }

    // qmllint disable unqualified
    Repeater {
        id: players
        model: root.cellCount

        OV_MediaPlayer {
            required property int index
            readonly property var entry: root.arrangement.channels[root.arrangement.shown[index] ?? -1] ?? null
            readonly property LiveCompanion companion: entry?.companion ?? null
            readonly property bool enlarged: root.enlargedCell === index

            x: enlarged ? 0 : (index % root.columns) * (root.cellWidth + Theme.half)
            y: enlarged ? 0 : Math.floor(index / root.columns) * (root.cellHeight + Theme.half)
            width: enlarged ? root.width : root.cellWidth
            height: enlarged ? root.height : root.cellHeight
            active: root.active && (root.enlargedCell < 0 || enlarged) && (companion?.loggedIn ?? true)
            channel: entry?.channel ?? -1
            channelName: entry?.caption ?? ""
            connected: entry?.connected ?? false
            current: root.currentCell === index && root.cellCount > 1
            figuresShown: root.figuresShown
            mainStream: enlarged || root.cellCount === 1
            objectName: "liveCell" + index
            session: companion?.handle ?? 0
            sessionAction: companion?.action ?? ""
            sessionBusy: companion?.busy ?? false
            sessionText: companion?.failure ?? ""
            sounding: root.sounding && root.currentCell === index
            stretched: root.stretched
            visible: root.enlargedCell < 0 || enlarged
            onCheckRequested: companion ? companion.check() : root.checkRequested()
            onChosen: root.currentCell = index
            onEnlargeRequested: {
                if (root.cellCount > 1)
                    root.enlargedCell = enlarged ? -1 : index;
            }
            onFailed: companion ? companion.expireResponse() : root.failed()
            onPlayingChanged: {
                if (playing && companion)
                    companion.noteResponse();
                else if (playing)
                    root.frameReceived();
            }
            onSessionActivated: companion.tryAgain()
        }
    }
    // qmllint enable unqualified
}
