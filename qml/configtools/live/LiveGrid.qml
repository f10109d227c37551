// The places for live pictures: 1, 4 or 9, or one of them enlarged. The sub stream does in the grid; a picture that
// has the whole room gets the main stream.
import QtQuick
import configtools

Item {
    id: root

    required property var channels       // of the device, as LiveDevice has them
    required property bool active
    property int places: 1
    property var shownChannels: []       // a channel for each place, -1 for none
    property int currentPlace: 0
    property int enlargedPlace: -1
    property bool stretched: false
    property bool sounding: false
    property bool figuresShown: false
    readonly property int currentChannel: shownChannels[currentPlace] ?? -1
    readonly property int pages: Math.max(1, Math.ceil(channels.length / places))
    property int page: 0
    signal asked   // whether the device is there: answer() is awaited
    signal failed  // a picture
    signal pictureCame

    function showPage(wanted) {
        page = Math.max(0, Math.min(pages - 1, wanted));
        const first = page * places;
        shownChannels = Array.from({length: places}, (_, place) => channels[first + place]?.channel ?? -1);
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
            showPage(channels.findIndex(entry => entry.channel === channel));
            return;
        }
        const changed = Array.from(shownChannels);
        changed[currentPlace] = channel;
        shownChannels = changed;
    }

    function enlarge(channel) {
        showChannel(channel);
        if (places > 1)
            enlargedPlace = currentPlace;
    }

    function reconnect() {
        for (let place = 0; place < players.count; ++place)
            players.itemAt(place).reconnect();
    }

    function answer(isThere) {
        for (let place = 0; place < players.count; ++place)
            players.itemAt(place).answer(isThere);
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
            readonly property var entry: root.channels[root.shownChannels[index] ?? -1] ?? null
            readonly property bool enlarged: root.enlargedPlace === index

            x: enlarged ? 0 : (index % root.columns) * (root.cellWidth + Theme.half)
            y: enlarged ? 0 : Math.floor(index / root.columns) * (root.cellHeight + Theme.half)
            width: enlarged ? root.width : root.cellWidth
            height: enlarged ? root.height : root.cellHeight
            active: root.active && (root.enlargedPlace < 0 || enlarged)
            channel: entry?.channel ?? -1
            channelName: entry?.name ?? ""
            connected: entry?.connected ?? false
            current: root.currentPlace === index && root.places > 1
            figuresShown: root.figuresShown
            mainStream: enlarged || root.places === 1
            objectName: "livePlace" + index
            sounding: root.sounding && root.currentPlace === index
            stretched: root.stretched
            visible: root.enlargedPlace < 0 || enlarged
            onAsked: root.asked()
            onChosen: root.currentPlace = index
            onEnlargeRequested: {
                if (root.places > 1)
                    root.enlargedPlace = enlarged ? -1 : index;
            }
            onFailed: root.failed()
            onPlayingChanged: if (playing) root.pictureCame()
        }
    }
    // qmllint enable unqualified
}
