// The places for live pictures: 1, 4 or 9, or one of them enlarged. The sub stream does in the grid; a picture that
// has the whole room gets the main stream. Channels go by their places in `channels`, which may be those of several
// devices.
import QtQuick
import configtools

Item {
    id: root

    required property bool active
    /// The channels, and for each place the index of one, -1 for none. Both change at the same time: a picture whose
    /// channel only moves in the list goes on.
    property var arrangement: ({channels: [], shown: []})
    readonly property var channels: arrangement.channels
    readonly property var shownChannels: arrangement.shown
    property int places: 1
    property int currentPlace: 0
    property int enlargedPlace: -1
    property bool stretched: false
    property bool sounding: false
    property bool figuresShown: false
    readonly property int currentChannel: shownChannels[currentPlace] ?? -1
    readonly property var currentEntry: channels[currentChannel] ?? null
    readonly property int pages: Math.max(1, Math.ceil(channels.length / places))
    property int page: 0
    signal asked   // whether the first device is there: answer() is awaited
    signal failed  // a picture of it
    signal pictureCame

    /// Takes the channels: maps of "ipport", "channel", "name", "connected" and "companion", null for those of the device
    /// that the window was opened for. What is shown stays in its place.
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

    function show(shown) {
        arrangement = {channels: channels, shown: shown};
    }

    function showPage(wanted) {
        page = Math.max(0, Math.min(pages - 1, wanted));
        const first = page * places;
        show(Array.from({length: places}, (_, place) => first + place < channels.length ? first + place : -1));
        currentPlace = 0;
        enlargedPlace = -1;
    }

    /// Changes the number of places; the channel that was looked at stays in view.
    function arrange(count) {
        const channel = Math.max(0, currentChannel);
        places = count;
        showPage(Math.floor(channel / count));
        currentPlace = Math.max(0, shownChannels.indexOf(channel));
    }

    /// Gives channels places beside those that are shown, as far as there is room for them.
    function include(wanted) {
        const shown = shownChannels.filter(channel => channel >= 0);
        const together = shown.concat(wanted.filter(channel => !shown.includes(channel)));
        const count = together.length <= 1 ? 1 : together.length <= 4 ? 4 : 9;
        enlargedPlace = -1;
        places = Math.max(places, count);
        show(Array.from({length: places}, (_, place) => together[place] ?? -1));
    }

    /// Puts a channel into the current place, or goes to the place that has it.
    function showChannel(channel) {
        const place = shownChannels.indexOf(channel);
        if (place >= 0) {
            currentPlace = place;
            if (enlargedPlace >= 0)
                enlargedPlace = place;
            return;
        }
        if (places === 1) {
            showPage(channel);
            return;
        }
        const changed = Array.from(shownChannels);
        changed[currentPlace] = channel;
        show(changed);
    }

    function enlarge(channel) {
        showChannel(channel);
        if (places > 1)
            enlargedPlace = currentPlace;
    }

    /// Calls `action` with the players of a device.
    function eachPlayerOf(companion, action) {
        for (let place = 0; place < players.count; ++place) {
            const player = players.itemAt(place);
            if ((player.entry?.companion ?? null) === companion)
                action(player);
        }
    }

    function reconnect(companion) {
        eachPlayerOf(companion, player => player.reconnect());
    }

    function answer(companion, isThere) {
        eachPlayerOf(companion, player => player.answer(isThere));
    }

    readonly property int columns: Math.round(Math.sqrt(places))
    readonly property real cellWidth: Math.floor((width - (columns - 1) * Theme.half) / columns)
    readonly property real cellHeight: Math.floor((height - (columns - 1) * Theme.half) / columns)

    /// Begins with a device.
    function begin() {
        places = channels.length <= 1 ? 1 : 4;
        showPage(0);
    }

    // qmllint disable unqualified
    Repeater {
        id: players
        model: root.places

        OV_MediaPlayer {
            required property int index
            readonly property var entry: root.arrangement.channels[root.arrangement.shown[index] ?? -1] ?? null
            readonly property LiveCompanion companion: entry?.companion ?? null
            readonly property bool enlarged: root.enlargedPlace === index

            x: enlarged ? 0 : (index % root.columns) * (root.cellWidth + Theme.half)
            y: enlarged ? 0 : Math.floor(index / root.columns) * (root.cellHeight + Theme.half)
            width: enlarged ? root.width : root.cellWidth
            height: enlarged ? root.height : root.cellHeight
            active: root.active && (root.enlargedPlace < 0 || enlarged) && (companion?.loggedIn ?? true)
            channel: entry?.channel ?? -1
            channelName: entry?.caption ?? ""
            connected: entry?.connected ?? false
            current: root.currentPlace === index && root.places > 1
            figuresShown: root.figuresShown
            mainStream: enlarged || root.places === 1
            objectName: "livePlace" + index
            session: companion?.handle ?? 0
            sessionAction: companion?.action ?? ""
            sessionBusy: companion?.busy ?? false
            sessionText: companion?.failure ?? ""
            sounding: root.sounding && root.currentPlace === index
            stretched: root.stretched
            visible: root.enlargedPlace < 0 || enlarged
            onAsked: companion ? companion.look() : root.asked()
            onChosen: root.currentPlace = index
            onEnlargeRequested: {
                if (root.places > 1)
                    root.enlargedPlace = enlarged ? -1 : index;
            }
            onFailed: companion ? companion.doubt() : root.failed()
            onPlayingChanged: {
                if (playing && companion)
                    companion.noteAlive();
                else if (playing)
                    root.pictureCame();
            }
            onSessionActivated: companion.tryAgain()
        }
    }
    // qmllint enable unqualified
}
