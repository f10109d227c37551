// Asks for the file format of an exported device list. It writes nothing: the owner reads `fileName` on `accepted` and
// closes the dialog.
import QtQuick
import configtools

OVDialog {
    id: root

    /// Name of the file without folder: "device.xlsx", "device.csv" or "device.xml", as chosen.
    readonly property string fileName: "device" + suffixes[formats.chosen]
    readonly property var suffixes: [".xlsx", ".csv", ".xml"]

    wantedWidth: Theme.messageWidth
    objectName: "exportDialog"
    title: qsTr("请选择导出的文件格式")
    onOpened: formats.itemAt(formats.chosen).forceActiveFocus()

    Column {
        width: parent.width
        spacing: Theme.controlGap

        Row {
            spacing: 2 * Theme.pageMargin

            // qmllint disable unqualified
            Repeater {
                id: formats

                property int chosen: 0

                model: root.suffixes

                OVRadioButton {
                    required property int index
                    required property string modelData

                    checked: index === formats.chosen
                    objectName: "format" + modelData
                    text: modelData
                    onClicked: formats.chosen = index
                }
            }
            // qmllint enable unqualified
        }
        OVParagraph {
            width: parent.width
            color: Theme.colours.sub
            font: Theme.hintFont
            objectName: "exportHint"
            text: qsTr("文件中的密码是明文。已保存账号的密码不导出。")
        }
    }
}
