// Names for many channels of a device, or for many cameras, from one pattern, with a preview.
import QtQuick
import configtools

OVDialog {
    id: root

    required property var deviceFactory
    property var channels: []  // of the current device: "name", "title", "ipport" and "model"
    property var cameras: []   // the ticked ones, of which the first channel is named
    property bool ofChannels: true
    readonly property var entries: ofChannels ? channels : cameras
    readonly property int start: Number(startField.text)
    readonly property int digits: Number(digitsField.text)
    readonly property var newNames: entries.map((entry, place) => nameOf(entry, place))
    readonly property bool numbered: /\{(n|ip4)\}/.test(patternField.text)
    readonly property string fault: patternField.text.trim() === "" ? qsTr("请输入命名规则")
        : /\{(?!(n|model|ip4)\})/.test(patternField.text) ? qsTr("只能使用 {n}、{model} 和 {ip4}")
        : newNames.some(name => ByteText.bytes(name) > ByteText.channelNameBytes)
          ? qsTr("名称过长，最多 %1 字节").arg(ByteText.channelNameBytes)
        : !startField.acceptable || !digitsField.acceptable ? startField.complaint : ""
    property bool tried: false
    signal confirmed(bool ofChannels, var entries)  // each with "newName"

    function ask(channels, cameras) {
        root.channels = channels;
        root.cameras = cameras;
        ofChannels = cameras.length === 0 || channels.length > 1;
        tried = false;
        open();
    }

    /// {n} counts, {model} is the model, {ip4} the last number of the IPv4 address.
    function nameOf(entry, place) {
        const last = (entry.ipport.match(/(\d+):\d+$/) ?? ["", ""])[1];
        return patternField.text.replace(/\{n\}/g, () => String(start + place).padStart(digits, "0"))
            .replace(/\{model\}/g, () => entry.model).replace(/\{ip4\}/g, () => last).trim();
    }

    function begin() {
        const chosen = preview.checkedIdentities();
        const named = entries.map((entry, place) => Object.assign({}, entry, {newName: newNames[place]}));
        close();
        confirmed(ofChannels, named.filter(entry => chosen.includes(entry.name)));
    }

    function showPreview() {
        preview.setEntries(entries.map((entry, place) => ({
            name: entry.name, title: entry.title ?? "", ipport: entry.ipport, action: newNames[place]
        })));
    }

    width: Theme.batchPreviewWidth
    objectName: "namePatternDialog"
    okText: ofChannels ? qsTr("填入") : qsTr("执行")
    title: qsTr("按规则命名")
    onEntriesChanged: showPreview()
    onNewNamesChanged: showPreview()
    onOpened: patternField.forceActiveFocus()
    onAccepted: {
        tried = true;
        const chosen = preview.checkedIdentities();
        if (fault !== "")
            refuse(fault);
        else if (chosen.length === 0)
            refuse(qsTr("请选择要命名的项"));
        else if (!ofChannels && preview.warningCount > 0)
            question.ask(preview.warningCount);
        else
            begin();
    }

    BatchPreview {
        id: preview
        deviceFactory: root.deviceFactory
    }

    footContent: OVLabel {
        height: parent.height
        color: Theme.colours.sub
        text: root.ofChannels ? qsTr("填入后可在表格中修改，保存时才写入设备。") : qsTr("写入各台设备的通道 1。")
    }

    Column {
        width: parent.width
        spacing: Theme.controlGap

        OVSegmentedChoice {
            currentIndex: root.ofChannels ? 0 : 1
            options: [
                {text: qsTr("当前设备的 %n 个通道", "", root.channels.length), objectName: "nameChannelsChoice"},
                {text: qsTr("勾选的 %n 台摄像机", "", root.cameras.length), objectName: "nameCamerasChoice"}
            ]
            visible: root.cameras.length > 0
            onActivated: index => root.ofChannels = index === 0
        }
        Row {
            spacing: Theme.pageMargin

            OVField {
                width: Theme.columnCommand
                label: qsTr("命名规则：{n} 序号，{model} 型号，{ip4} 地址的最后一段")

                OVTextField {
                    id: patternField
                    width: parent.width
                    accessibleName: qsTr("命名规则")
                    errorText: (root.tried || root.fault.includes("{")) && root.fault !== startField.complaint ? root.fault : ""
                    objectName: "patternField"
                    text: "Hall {n}"
                    warningText: root.entries.length > 1 && !root.numbered ? qsTr("多个通道会得到同一个名称") : ""
                }
            }
            OVField {
                width: Theme.portFieldWidth
                label: qsTr("起始序号")

                OVNumberField {
                    id: startField
                    width: parent.width
                    accessibleName: qsTr("起始序号")
                    objectName: "patternStartField"
                    text: "1"
                }
            }
            OVField {
                width: Theme.portFieldWidth
                label: qsTr("位数")

                OVNumberField {
                    id: digitsField
                    width: parent.width
                    accessibleName: qsTr("位数")
                    maximumLength: 1
                    objectName: "patternDigitsField"
                    text: "1"
                }
            }
        }
        BatchPreviewTable {
            width: parent.width
            height: Theme.batchPreviewHeight
            givesNames: true
            objectName: "namePreview"
            preview: preview
        }
    }
    BatchWarningQuestion {
        id: question
        onAccepted: root.begin()
    }
}
