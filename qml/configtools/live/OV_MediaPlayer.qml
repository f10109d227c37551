// One channel's live picture with what is to be said about it. A stream that fails or breaks is tried again, after
// pauses that grow.
import QtQuick
import VideoItem 1.0
import configtools

FocusScope {
    id: root

    required property int channel         // from 0, below 0 for an empty place
    required property string channelName
    required property bool connected      // the channel has a camera
    required property bool active         // the stream is wanted now
    property bool mainStream: false
    property bool current: false
    property bool stretched: false
    property bool sounding: false
    property bool figuresShown: false
    property bool compact: false          // a small picture beside something else: words only
    property double session: 0            // handle of a session of its own, 0 for that of the configuration pages
    property string sessionText           // why that is not there; empty when it is
    property string sessionAction         // what the user can do about it; empty for nothing
    property bool sessionBusy: false      // it is on its way
    readonly property bool wanted: active && connected && channel >= 0
    readonly property bool playing: video.hasPicture
    readonly property bool resting: retry.failures > 0 && !connecting && !playing  // until the next try
    readonly property bool turning: connecting || sessionBusy
    readonly property alias video: video
    signal asked  // before a start: answer() is awaited, so that a device that is away is asked once for all views
    signal chosen
    signal enlargeRequested
    signal failed
    signal sessionActivated

    property bool connecting: false
    property bool asking: false  // for the answer
    property bool subRefused: false  // the channel has no sub stream: the main one is shown in its place

    readonly property int zoomLevels: 20
    readonly property real zoomStep: 1.2  // from one level to the next
    // The picture as it is shown; the bars at its sides are what it leaves of the view.
    readonly property real pictureScale: !playing || stretched ? 0
        : Math.min(width / video.pictureSize.width, height / video.pictureSize.height) * Math.pow(zoomStep, video.zoomLevel)
    readonly property int sideBar: pictureScale > 0 ? Math.max(0, (width - video.pictureSize.width * pictureScale) / 2) : 0
    readonly property int topBar: pictureScale > 0 ? Math.max(0, (height - video.pictureSize.height * pictureScale) / 2) : 0

    function begin() {
        retry.stop();
        if (!wanted)
            return;
        connecting = true;
        asking = false;
        starting.restart();
    }

    /// Whether the device is there.
    function answer(isThere) {
        if (!asking)
            return;
        asking = false;
        if (isThere)
            video.startInBackground();
        else
            fail();
    }

    /// After the request for the stream.
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

    function end() {
        starting.stop();
        retry.settle();
        connecting = false;
        asking = false;
        subRefused = false;
        video.stop();
    }

    function fail() {
        video.stop();
        connecting = false;
        retry.fail();
        failed();
    }

    function restart() {
        end();
        begin();
    }

    /// Tries at once what may go well now; the failures until now still count.
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
        onHasPictureChanged: {
            if (hasPicture) {
                root.connecting = false;
                retry.settle();
            }
        }
        onStartEnded: (isStreaming, mayTryOther) => root.takeStart(isStreaming, mayTryOther)
        onVideoErrorSig: root.fail()
    }
    // Once what changes together has changed: the channel, the kind of stream, whether it is wanted.
    Timer {
        id: starting
        interval: 0
        onTriggered: {
            root.asking = true;
            root.asked();
        }
    }
    GrowingPause {
        id: retry
        onOver: root.begin()
    }

    MouseArea {
        property point last
        property real turned: 0  // by the wheel since the last whole notch
        readonly property real notch: 120  // of a mouse wheel, in eighths of a degree

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
            // Fine wheels and touchpads turn in parts of a notch.
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
                : root.resting ? (video.text !== "" ? video.text : qsTr("画面中断")) : ""
            visible: text !== ""
        }
        OVParagraph {
            width: parent.width
            color: Theme.colours.barSub
            font: Theme.hintFont
            horizontalAlignment: Text.AlignHCenter
            objectName: "liveRetryText"
            text: qsTr("%n 秒后重试", "", retry.seconds)
            visible: root.resting && root.wanted
        }
        OVButton {
            anchors.horizontalCenter: parent.horizontalCenter
            objectName: "liveRetryButton"
            text: root.sessionAction !== "" ? root.sessionAction : qsTr("立即重试")
            visible: root.sessionAction !== "" || (root.resting && root.wanted && !root.compact)
            onClicked: root.sessionAction !== "" ? root.sessionActivated() : root.reconnect()
        }
    }

    Rectangle {  // the channel's name, on the picture and readable over any
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
            color: Theme.colours.barInk
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
