// The live view of a channel, with its state as text. The stream starts when `wanted` becomes true and ends when it
// becomes false or the item is destroyed. A failed or broken stream is retried with growing delays, see
// ExponentialBackoff. Before each start the owner checks the device, see checkRequested(). The mouse wheel zooms, and
// a drag moves the zoomed image; another channel is shown without zoom.
import QtQuick
import VideoItem 1.0
import configtools

FocusScope {
    id: root

    required property int channel         // from 0; negative: empty cell
    required property string channelName  // text in the corner of the view
    required property bool connected      // a camera is connected
    required property bool active         // the stream may run
    property bool mainStream: false  // otherwise the sub stream, or the main one if the device refuses that
    property bool current: false  // has a coloured border
    property bool stretched: false  // the video fills the view, without its aspect ratio
    property bool sounding: false  // plays the sound
    property bool figuresShown: false  // shows LiveFigures while playing
    property bool compact: false          // small view: no mouse input, no button for a retry of the stream
    /// Handle of a separate session, 0 for the session of the configuration pages. The next start uses it: a running
    /// stream is not affected.
    property double session: 0
    property string sessionText           // why there is no session, "" if there is one
    property string sessionAction         // text of the button that emits sessionActivated(), "" for none
    property bool sessionBusy: false      // the session is being opened
    readonly property bool wanted: active && connected && channel >= 0  // the stream is to run
    readonly property bool playing: video.hasFrame  // a frame of the stream is shown
    readonly property bool waitingForRetry: backoff.failures > 0 && !connecting && !playing  // waits for the next attempt
    readonly property bool turning: connecting || sessionBusy  // the spinner is shown
    readonly property alias video: video
    signal checkRequested  // before a start: the owner checks the device, then calls takeCheckResult()
    signal chosen  // by a press of the mouse
    signal enlargeRequested  // by a double click
    signal failed  // the device does not respond, or the stream failed; a retry follows
    signal sessionActivated  // the button of `sessionAction` was clicked

    property bool connecting: false  // from begin() to the first frame or a failure
    property bool checking: false  // waits for takeCheckResult()
    property bool subRefused: false  // the device refused the sub stream: the main stream is used

    readonly property int zoomLevels: 20  // as ViewGeometry::maximumLevel
    readonly property real zoomStep: 1.2  // factor between two levels
    // Scale of the shown frame; the bars are the unused rest of the view.
    readonly property real frameScale: !playing || stretched ? 0
        : Math.min(width / video.frameSize.width, height / video.frameSize.height) * Math.pow(zoomStep, video.zoomLevel)
    // Width of the bars on the left and right of the frame, and height of those above and below it, in pixels.
    readonly property int sideBar: frameScale > 0 ? Math.max(0, (width - video.frameSize.width * frameScale) / 2) : 0
    readonly property int topBar: frameScale > 0 ? Math.max(0, (height - video.frameSize.height * frameScale) / 2) : 0

    /// Starts the stream if it is `wanted`: requests the check first.
    function begin() {
        backoff.stop();
        if (!wanted)
            return;
        connecting = true;
        checking = false;
        starting.restart();
    }

    /// Result of checkRequested(). Ignored if this view does not wait for one.
    function takeCheckResult(isReachable) {
        if (!checking)
            return;
        checking = false;
        if (isReachable)
            video.startInBackground();
        else
            fail();
    }

    /// Takes the result of the request for the stream. `mayTryOther`: the start failed for this kind of stream only, so
    /// that a request for the other one may succeed. A refused sub stream is replaced by the main stream.
    function takeStart(isStreaming, mayTryOther) {
        if (isStreaming)
            return;
        if (!mainStream && !subRefused && mayTryOther) {
            subRefused = true;
            video.startInBackground();
            return;
        }
        subRefused = false;
        fail();
    }

    /// Stops the stream and its retries.
    function end() {
        starting.stop();
        backoff.reset();
        connecting = false;
        checking = false;
        subRefused = false;
        video.stop();
    }

    /// Stops the stream and waits for the next attempt; emits failed().
    function fail() {
        video.stop();
        connecting = false;
        backoff.fail();
        failed();
    }

    /// Stops the stream and starts it again immediately. The number of failures is reset.
    function restart() {
        end();
        begin();
    }

    /// Stops the stream and starts it again immediately. The number of failures, and with it the next delay, is kept.
    function reconnect() {
        video.stop();
        begin();
    }

    onWantedChanged: wanted ? begin() : end()
    onChannelChanged: {
        video.changeScale(-zoomLevels, Qt.point(0, 0));
        if (wanted)
            restart();
    }
    onMainStreamChanged: if (wanted) restart()
    Component.onCompleted: if (wanted) begin()
    Component.onDestruction: video.stop()

    Accessible.role: Accessible.Graphic
    Accessible.name: channelName

    Rectangle {
        anchors.fill: parent
        color: Theme.colours.videoGround
    }
    VideoItem {
        id: video
        anchors.fill: parent
        channelId: root.channel
        fillMode: root.stretched ? VideoItem.Stretch : VideoItem.PreserveAspectFit
        isAudioOutput: root.sounding
        objectName: "liveVideo"
        session: root.session
        streamKind: root.mainStream || root.subRefused ? VideoItem.Main : VideoItem.Sub
        onHasFrameChanged: {
            if (hasFrame) {
                root.connecting = false;
                backoff.reset();
            }
        }
        onStartEnded: (isStreaming, mayTryOther) => root.takeStart(isStreaming, mayTryOther)
        onVideoErrorSig: root.fail()
    }
    // After related changes: channel, stream, `wanted`.
    Timer {
        id: starting
        interval: 0
        onTriggered: {
            root.checking = true;
            root.checkRequested();
        }
    }
    ExponentialBackoff {
        id: backoff
        onElapsed: root.begin()
    }

    MouseArea {
        property point last
        property real turned: 0  // wheel rotation since the last full notch
        readonly property real notch: 120  // of a wheel notch, in eighths of a degree

        anchors.fill: parent
        acceptedButtons: Qt.LeftButton
        cursorShape: pressed && root.playing ? Qt.ClosedHandCursor : Qt.ArrowCursor
        enabled: !root.compact
        onDoubleClicked: root.enlargeRequested()
        onPositionChanged: mouse => {
            video.drag(mouse.x - last.x, mouse.y - last.y);
            last = Qt.point(mouse.x, mouse.y);
        }
        onPressed: mouse => {
            last = Qt.point(mouse.x, mouse.y);
            root.chosen();
        }
        onWheel: wheel => {
            // High-resolution wheels and touchpads report fractions of a notch.
            turned += wheel.angleDelta.y / notch;
            const notches = Math.trunc(turned);
            turned -= notches;
            if (notches !== 0)
                video.changeScale(notches, Qt.point(wheel.x, wheel.y));
        }
    }

    Column {
        anchors.centerIn: parent
        width: parent.width - 2 * Theme.unit
        spacing: Theme.unit
        visible: !root.playing || video.problemText !== ""

        OVIcon {
            anchors.horizontalCenter: parent.horizontalCenter
            color: Theme.colours.barSub
            name: root.channel < 0 ? "video" : root.connected ? "error" : "noVideo"
            size: root.compact ? Theme.iconSize : Theme.clockSize
            visible: !root.turning
        }
        OVSpinner {
            anchors.horizontalCenter: parent.horizontalCenter
            color: Theme.colours.barSub
            running: root.turning
            size: root.compact ? Theme.iconSize : Theme.clockSize
            visible: root.turning
        }
        OVParagraph {
            width: parent.width
            color: Theme.colours.barSub
            horizontalAlignment: Text.AlignHCenter
            objectName: "liveStateText"
            text: root.channel < 0 ? qsTr("没有通道")
                : root.sessionText !== "" ? root.sessionText
                : !root.connected ? qsTr("通道未连接")
                : root.connecting ? qsTr("正在连接…")
                : root.playing ? video.problemText
                : root.waitingForRetry ? (video.text !== "" ? video.text : qsTr("画面中断")) : ""
            visible: text !== ""
        }
        OVParagraph {
            width: parent.width
            color: Theme.colours.barSub
            font: Theme.hintFont
            horizontalAlignment: Text.AlignHCenter
            objectName: "liveRetryText"
            text: qsTr("%n 秒后重试", "", backoff.secondsLeft)
            visible: root.waitingForRetry && root.wanted
        }
        OVButton {
            anchors.horizontalCenter: parent.horizontalCenter
            objectName: "liveRetryButton"
            text: root.sessionAction !== "" ? root.sessionAction : qsTr("立即重试")
            visible: root.sessionAction !== "" || (root.waitingForRetry && root.wanted && !root.compact)
            onClicked: root.sessionAction !== "" ? root.sessionActivated() : root.reconnect()
        }
    }

    Rectangle {  // name of the channel, on a dark ground
        x: root.sideBar + Theme.unit
        y: root.topBar + Theme.unit
        width: Math.min(name.implicitWidth + 2 * Theme.unit, parent.width - 2 * x)
        height: Theme.unit * 3
        color: Theme.colours.videoVeil
        radius: Theme.smallRadius
        visible: root.channel >= 0

        OVLabel {
            id: name
            x: Theme.unit
            width: parent.width - 2 * x
            height: parent.height
            color: Theme.colours.barText
            font: Theme.hintFont
            objectName: "liveChannelName"
            text: root.channelName
        }
    }
    LiveFigures {
        anchors.bottom: parent.bottom
        anchors.bottomMargin: root.topBar + Theme.unit
        x: root.sideBar + Theme.unit
        visible: root.figuresShown && root.playing
        video: video
    }
    Rectangle {
        anchors.fill: parent
        border.color: root.current && !root.compact ? Theme.colours.accent : Theme.colours.videoLine
        border.width: root.current && !root.compact ? 2 : Theme.line
        color: Theme.colours.clear
    }
}
