// How far the document is that devices are upgraded by.
import QtQuick
import configtools

Item {
    id: root

    required property string name  // of the file
    required property int done     // lines, of `total`
    required property int total
    required property int percent
    signal stopRequested

    implicitHeight: Theme.controlHeight + Theme.controlGap

    Row {
        height: Theme.controlHeight
        spacing: Theme.controlGap

        OVIcon {
            id: sign
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.colours.accent
            name: "about"
        }
        OVLabel {
            width: Math.min(implicitWidth, root.width - sign.width - bar.width - figure.width - stop.width
                - 4 * parent.spacing)
            height: parent.height
            objectName: "upgradeDocumentText"
            //: %1 is a file, %2 of %3 its lines.
            text: qsTr("升级文档 %1：已完成 %2 / %3 行").arg(root.name).arg(root.done).arg(root.total)
        }
        OVProgressBar {
            id: bar
            anchors.verticalCenter: parent.verticalCenter
            value: root.percent / 100
        }
        OVLabel {
            id: figure
            height: parent.height
            color: Theme.colours.sub
            font: Theme.figureFont
            text: root.percent + "%"
        }
        OVButton {
            id: stop
            objectName: "upgradeDocumentStop"
            text: qsTr("停止文档升级")
            toolTip: qsTr("停止此文档中尚未开始写入的设备")
            onClicked: root.stopRequested()
        }
    }
}
