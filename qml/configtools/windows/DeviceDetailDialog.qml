// Everything that is known of a device, for reading and copying. Passwords are left out.
import QtQuick
import QtQuick.Templates as T
import configtools

OVDialog {
    id: root

    property var entries: []
    signal copyRequested(string text)

    /// Takes the values of a row and what else is known, by their keys.
    function load(detail) {
        const known = [
            [qsTr("名称"), detail.name], [qsTr("类型"), detail.type], [qsTr("型号"), detail.model],
            [qsTr("状态"), detail.state ? qsTr("已初始化") : qsTr("未初始化")],
            [qsTr("IP:端口"), detail.ipport], ["MAC", detail.mac],
            [qsTr("子网掩码"), detail.submask], [qsTr("网关"), detail.gateway],
            ["DHCP", detail.dhcp === undefined ? "" : detail.dhcp ? qsTr("是") : qsTr("否")],
            [qsTr("HTTP端口"), detail.httpport > 0 ? detail.httpport : ""],
            [qsTr("序列号"), detail.serial], [qsTr("版本号"), detail.vision],
            [qsTr("添加方式"), detail.loginType], [qsTr("P2P端口"), detail.devp2pPort],
            [qsTr("用户名"), detail.username], [qsTr("本机地址"), detail.localAddress]
        ];
        entries = known.filter(entry => (entry[1] ?? "") !== "")
            .map(entry => ({label: entry[0], value: String(entry[1])}));
    }

    function text() {
        return entries.map(entry => entry.label + ": " + entry.value).join("\n");
    }

    width: Theme.detailWidth
    objectName: "detailDialog"
    okText: qsTr("复制全部")
    cancelText: qsTr("关闭")
    title: qsTr("设备详情")
    onAccepted: copyRequested(text())
    onOpened: list.forceActiveFocus()

    ListView {
        id: list
        width: parent.width
        height: Math.min(contentHeight, Theme.detailHeight)
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        model: root.entries
        objectName: "detailList"

        T.ScrollBar.vertical: OVScrollBar {}

        delegate: Item {
            id: entry

            required property int index
            required property var modelData

            width: ListView.view.width
            height: Math.max(Theme.rowHeight, value.height + Theme.controlGap)

            OVLabel {
                width: Theme.formLabelWidth
                height: Theme.rowHeight
                color: Theme.colours.sub
                text: entry.modelData.label
            }
            TextEdit {
                id: value
                x: Theme.formLabelWidth + Theme.unit
                y: Math.round(Theme.rowHeight / 2 + font.pixelSize * Theme.baselineShift - baselineOffset)
                width: parent.width - x - Theme.pageMargin
                color: Theme.colours.ink
                font: Theme.figureFont
                objectName: "detailValue"
                readOnly: true
                renderType: Text.NativeRendering
                selectByMouse: true
                selectedTextColor: Theme.colours.ink
                selectionColor: Theme.colours.rowSelected
                text: entry.modelData.value
                textFormat: TextEdit.PlainText
                wrapMode: TextEdit.WrapAnywhere

                Accessible.name: entry.modelData.label + " " + text
            }
            Rectangle {
                y: parent.height - height
                width: parent.width
                height: Theme.line
                color: Theme.colours.line
                visible: entry.index < entry.ListView.view.count - 1
            }
        }
    }
}
