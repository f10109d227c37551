// The tab that sets the video standard of the ticked devices (command "videoStandard"). It does not show their current
// standard.
import QtQuick
import configtools

OVSection {
    id: root

    required property bool available  // devices are ticked and no batch runs
    required property string unavailableText  // why no command can start, for tool tips; "" if `available`
    required property bool supported  // the network library can set the standard
    signal actionRequested(string command, string title, var data)  // title: for the user; see SystemBatch.run()

    title: qsTr("视频制式")

    OVFormRow {
        width: parent.width
        label: qsTr("制式")
        labelWidth: Theme.panelLabelWidth

        OVComboBox {
            id: standardBox
            accessibleName: qsTr("制式")
            enabled: root.supported
            model: ["PAL", "NTSC"]
            objectName: "videoStandardBox"
        }
    }
    OVParagraph {
        x: Theme.panelLabelWidth + Theme.unit
        width: parent.width - x
        color: Theme.colours.faint
        font: Theme.hintFont
        text: !root.supported ? qsTr("设备的接口没有此功能") : qsTr("PAL 为 50 Hz 电源地区使用，NTSC 为 60 Hz 电源地区使用。部分设备在切换后会重启。")
    }
    OVActionRow {
        x: Theme.panelLabelWidth + Theme.unit

        OVButton {
            enabled: root.available && root.supported
            kind: OVButton.Primary
            objectName: "videoStandardButton"
            text: qsTr("应用")
            toolTip: root.supported ? root.unavailableText : ""
            onClicked: {
                const standard = standardBox.currentIndex + 1;
                root.actionRequested("videoStandard", root.title, {videoStandard: standard});
            }
        }
    }
}
