// Makes names from a pattern, with a preview: for the channels of one device, or for channel 1 of several cameras. In
// the pattern, {n} is a number, {model} the model and {ip4} the last number of the IPv4 address. The dialog writes
// nothing; the owner handles the signals.
import QtQuick
import configtools

OVDialog {
    id: root

    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    property string device: ""    // "address:port" of the device with the channels; "" for none
    property int channelCount: 0  // number of its channels; 0 without a device
    property var cameras: []      // "address:port" of the ticked devices; recorders among them are skipped
    property int cameraCount: 0   // number of cameras among these devices
    property bool ofChannels: true  // channels of `device` are named; otherwise `cameras`
    /// Error of the pattern or a number, "" for none.
    readonly property string fault: plan.fault !== "" ? plan.fault
        : !startField.acceptable || !digitsField.acceptable ? startField.invalidText : ""
    property bool tried: false  // OK was pressed: the field also shows the errors of an incomplete pattern
    signal channelsNamed(var channels, var names)  // channels: numbers from 0, as texts; names: in the same order
    signal camerasNamed(var ipports, var names)  // ipports: of the ticked cameras; names: in the same order

    /// Opens the dialog. Returns false, without opening it, if there is neither a channel nor a camera. `device` is ""
    /// and `channelCount` 0 without a device.
    function ask(device, channelCount, cameras) {
        root.device = device;
        root.channelCount = channelCount;
        root.cameras = cameras;
        cameraCount = plan.countCameras(cameras);
        tried = false;
        if (cameraCount === 0 && channelCount === 0)
            return false;
        choose(cameraCount === 0 || channelCount > 1);
        open();
        return true;
    }

    /// Shows the preview for the channels or for the cameras.
    function choose(ofChannels) {
        root.ofChannels = ofChannels;
        if (ofChannels)
            plan.takeChannels(device, channelCount);
        else
            plan.takeCameras(cameras);
    }

    /// Closes the dialog and emits channelsNamed() or camerasNamed() with the names of the ticked rows.
    function begin() {
        close();
        if (ofChannels)
            channelsNamed(plan.namedIdentities(), plan.names());
        else
            camerasNamed(plan.namedIdentities(), plan.names());
    }

    wantedWidth: Theme.batchPreviewWidth
    objectName: "namePatternDialog"
    okText: ofChannels ? qsTr("填入") : qsTr("执行")
    title: qsTr("按规则命名")
    onOpened: patternField.forceActiveFocus()
    onAccepted: {
        tried = true;
        if (fault !== "")
            refuse(fault);
        else if (plan.names().length === 0)
            refuse(qsTr("请选择要命名的项"));
        else if (!ofChannels && plan.warningCount > 0)
            question.ask(plan.warningCount, plan.warnings());
        else
            begin();
    }

    NamePlan {
        id: plan
        deviceFactory: root.deviceFactory
        digits: Number(digitsField.text)
        pattern: patternField.text
        start: Number(startField.text)
    }

    footContent: OVLabel {
        height: parent.height
        color: Theme.colours.sub
        text: root.ofChannels ? qsTr("填入后可在表格中修改，保存时才写入设备。") : qsTr("写入各台摄像机的通道 1。")
    }

    Column {
        width: parent.width
        spacing: Theme.controlGap

        OVSegmentedChoice {
            currentIndex: root.ofChannels ? 0 : 1
            options: [
                {text: qsTr("当前设备的 %n 个通道", "", root.channelCount), objectName: "nameChannelsChoice"},
                {text: qsTr("勾选的 %n 台摄像机", "", root.cameraCount), objectName: "nameCamerasChoice"}
            ]
            visible: root.cameras.length > 0 && root.channelCount > 0
            onActivated: index => root.choose(index === 0)
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
                    errorText: (root.tried || root.fault.includes("{")) && root.fault !== startField.invalidText ? root.fault : ""
                    objectName: "patternField"
                    text: "Hall {n}"
                    warningText: plan.repeated ? qsTr("多个通道会得到同一个名称") : ""
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
            preview: plan
        }
    }
    BatchWarningQuestion {
        id: question
        onAccepted: root.begin()
    }
}
