// Statistics of a live stream: size, codec, frames per second, bit rate, data that is not decoded yet, frames skipped
// because the host is too slow, and the codec of the sound if there is one. Read once a second while visible.
import QtQuick
import VideoItem 1.0
import configtools

Rectangle {
    id: root

    required property VideoItem video  // draws the stream
    /// Map of "width", "height" (pixels), "codec", "rate" (frames per second), "bitRate" (kbit/s), "waiting" (bytes
    /// that are not decoded), "skipped" (frames) and "audioCodec" ("" without sound).
    property var figures: ({})

    readonly property var lines: [
        [figures.width ?? 0, figures.height ?? 0].join(" × ") + "   " + (figures.codec ?? ""),
        qsTr("%1 帧/秒   %2 kbit/s").arg(Math.round(figures.rate ?? 0)).arg(Math.round(figures.bitRate ?? 0)),
        //: Data of a live stream that is waiting to be decoded.
        qsTr("待解码 %1 KB").arg(Math.round((figures.waiting ?? 0) / 1024)),
        qsTr("跳过 %1 帧").arg(figures.skipped ?? 0)
    ].concat((figures.audioCodec ?? "") === "" ? [] : [qsTr("音频 %1").arg(figures.audioCodec)])

    width: text.implicitWidth + 2 * Theme.unit
    height: text.implicitHeight + Theme.unit
    color: Theme.colours.videoVeil
    radius: Theme.smallRadius
    onVisibleChanged: if (visible) figures = video.figures()

    Timer {
        interval: 1000
        repeat: true
        running: root.visible
        triggeredOnStart: true
        onTriggered: root.figures = root.video.figures()
    }
    Text {
        id: text
        x: Theme.unit
        y: Theme.half
        color: Theme.colours.barText
        font: Theme.smallFigureFont
        lineHeight: 1.3
        objectName: "liveFigures"
        text: root.lines.join("\n")
        textFormat: Text.PlainText
    }
}
