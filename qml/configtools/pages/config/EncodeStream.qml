// The encode settings of the main or the sub stream of a channel. It only requests changes.
import QtQuick
import configtools

Column {
    id: root

    required property string title
    required property string namePrefix  // prefix of the object names
    /// mainStream or subStream of EncodeForm: a map with "hasAudio" (bool) and a map for each setting, with "key",
    /// "changed" (bool), "usable" (bool: can be set), "choices", "names" (the choices for the user) and "index" (-1:
    /// unknown), or "value", "minimum" and "maximum".
    required property var stream
    required property var streamTypes  // names of the types of this stream; may be empty
    property int streamType: 0  // index in streamTypes
    property bool isSub: false  // the sub stream: it can be switched off
    /// Set the setting with this "key". `value`: an element of its "choices", a number (a switch: 0 or 1), or for the
    /// bit rate a text in kbit/s.
    signal changeRequested(string key, var value)
    signal streamTypeRequested(int index)  // select the type with this index

    /// Requests the choice with this index for a setting of `stream`.
    function requestChoice(setting, index) {
        changeRequested(setting.key, setting.choices[index]);
    }

    spacing: Theme.unit

    Item {
        width: parent.width
        height: Theme.unit * 3

        OVLabel {
            height: parent.height - Theme.half
            color: Theme.colours.sub
            font: Theme.headFont
            text: root.title
        }
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: Theme.line
            color: Theme.colours.line
        }
    }

    // qmllint disable unqualified
    component TextChoice: EncodeRow {
        id: row

        required property var setting
        required property string choiceName

        changed: setting.changed

        OVChoice {
            width: parent.width
            accessibleName: root.title + " " + row.label
            chosen: row.setting.index
            enabled: row.setting.usable
            model: row.setting.names
            objectName: root.namePrefix + row.choiceName
            source: root.stream
            onIndexRequested: index => root.requestChoice(row.setting, index)
        }
    }
    component NumberSlider: EncodeRow {
        id: row

        required property var setting
        required property string sliderName
        property bool usable: true

        changed: setting.changed

        OVSlider {
            width: parent.width
            accessibleName: root.title + " " + row.label
            enabled: row.setting.usable && row.usable
            from: row.setting.minimum
            objectName: root.namePrefix + row.sliderName
            source: root.stream
            to: row.setting.maximum
            unknown: row.setting.value < row.setting.minimum
            value: row.setting.value
            onCommitted: value => root.changeRequested(row.setting.key, value)
        }
    }
    // qmllint enable unqualified

    EncodeRow {
        changed: root.isSub && root.stream.videoEnable.changed
        label: qsTr("码流类型")

        OVChoice {
            width: parent.width - (root.isSub ? videoSwitch.width + Theme.controlGap : 0)
            accessibleName: root.title + " " + qsTr("码流类型")
            chosen: root.streamTypes.length > 0 ? root.streamType : -1
            enabled: root.streamTypes.length > 1
            model: root.streamTypes
            objectName: root.namePrefix + "StreamTypeChoice"
            source: root.stream
            onIndexRequested: index => root.streamTypeRequested(index)
        }
        OVSwitch {
            id: videoSwitch
            anchors.right: parent.right
            accessibleName: qsTr("启用辅码流")
            enabled: root.stream.videoEnable.usable
            objectName: root.namePrefix + "VideoSwitch"
            on: root.stream.videoEnable.value === 1
            text: qsTr("启用")
            visible: root.isSub
            onToggleRequested: on => root.changeRequested(root.stream.videoEnable.key, on ? 1 : 0)
        }
    }
    TextChoice {
        choiceName: "EncodeModeChoice"
        label: qsTr("编码模式")
        setting: root.stream.encodeMode
    }
    TextChoice {
        choiceName: "ResolutionChoice"
        label: qsTr("分辨率")
        setting: root.stream.resolution
    }
    EncodeRow {
        changed: root.stream.control.changed
        label: qsTr("码流控制")

        OVChoice {
            width: parent.width
            accessibleName: root.title + " " + qsTr("码流控制")
            chosen: root.stream.control.value
            enabled: root.stream.control.usable
            model: [qsTr("固定码流"), qsTr("可变码流")]
            objectName: root.namePrefix + "ControlChoice"
            source: root.stream
            onIndexRequested: index => root.changeRequested(root.stream.control.key, index)
        }
    }
    EncodeRow {
        changed: root.stream.bitRate.changed
        label: qsTr("码流值(Kb/S)")

        EncodeBitRate {
            width: parent.width
            accessibleName: root.title + " " + qsTr("码流值(Kb/S)")
            namePrefix: root.namePrefix
            setting: root.stream.bitRate
            onChosen: bitRate => root.changeRequested(root.stream.bitRate.key, bitRate)
        }
    }
    NumberSlider {
        label: qsTr("帧率(FPS)")
        setting: root.stream.frameRate
        sliderName: "FrameRateSlider"
    }
    NumberSlider {
        label: qsTr("画质")
        setting: root.stream.quality
        sliderName: "QualitySlider"
        usable: root.stream.control.value === 1
    }
    EncodeRow {
        changed: root.stream.audioEnable.changed || root.stream.audioCompression.changed
        label: qsTr("音频编码")
        visible: root.stream.hasAudio

        OVSwitch {
            id: audioSwitch
            accessibleName: root.title + " " + qsTr("启用音频")
            enabled: root.stream.audioEnable.usable
            objectName: root.namePrefix + "AudioSwitch"
            on: root.stream.audioEnable.value === 1
            onToggleRequested: on => root.changeRequested(root.stream.audioEnable.key, on ? 1 : 0)
        }
        OVChoice {
            anchors.right: parent.right
            width: parent.width - audioSwitch.width - Theme.controlGap
            accessibleName: root.title + " " + qsTr("音频编码")
            chosen: root.stream.audioCompression.index
            enabled: root.stream.audioCompression.usable
            model: root.stream.audioCompression.names
            objectName: root.namePrefix + "AudioChoice"
            source: root.stream
            onIndexRequested: index => root.requestChoice(root.stream.audioCompression, index)
        }
    }
    TextChoice {
        choiceName: "SamplingChoice"
        label: qsTr("采样率(Hz)")
        setting: root.stream.samplingFrequency
        visible: root.stream.hasAudio
    }
}
