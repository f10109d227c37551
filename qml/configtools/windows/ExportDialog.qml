// Asks for the file format of an exported device list, and for the protection of its passwords. It writes nothing: the
// owner reads the properties on `accepted` and closes the dialog.
import QtQuick
import configtools

OVDialog {
    id: root

    /// How the file protects the passwords. Readable: they are plain text. LeftOut: it has none. Encrypted: the entire
    /// list is encrypted with `passphrase`. Passwords of stored accounts are never exported.
    enum Passwords { Readable, LeftOut, Encrypted }

    /// Name of the file without folder: "device.xlsx", "device.csv", "device.xml" or "device.devlist", as chosen.
    readonly property string fileName: "device" + (encrypts ? ".devlist" : suffixes[formats.chosen])
    readonly property var suffixes: [".xlsx", ".csv", ".xml"]
    readonly property alias passwords: protections.chosen  // a value of Passwords
    readonly property bool encrypts: passwords === ExportDialog.Encrypted
    readonly property string passphrase: encrypts ? phrase.text : ""  // cleared when the dialog has closed
    readonly property int shortestPassphrase: 8  // characters
    /// In the order of Passwords.
    readonly property var hints: [
        qsTr("文件中的密码是明文。已保存账号的密码不导出。"),
        qsTr("文件不含密码。导入前须在文件中填写密码。"),
        qsTr("整个列表用密码短语加密，只有本程序能读取。密码短语丢失后无法恢复。已保存账号的密码不导出。")
    ]

    wantedWidth: Theme.messageWidth
    objectName: "exportDialog"
    okEnabled: !encrypts || (phrase.text.length >= shortestPassphrase && repeated.text === phrase.text)
    title: qsTr("请选择导出的文件格式")
    onOpened: formats.itemAt(formats.chosen).forceActiveFocus()
    onClosed: {
        phrase.text = "";
        repeated.text = "";
    }

    Column {
        width: parent.width
        spacing: Theme.controlGap

        Row {
            enabled: !root.encrypts
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
        Column {
            width: parent.width

            // qmllint disable unqualified
            Repeater {
                id: protections

                property int chosen: ExportDialog.Readable

                model: [qsTr("完整列表"), qsTr("不含密码"), qsTr("加密（.devlist）")]

                OVRadioButton {
                    required property int index
                    required property string modelData

                    checked: index === protections.chosen
                    objectName: "passwords" + index
                    text: modelData
                    onClicked: protections.chosen = index
                }
            }
            // qmllint enable unqualified
        }
        OVTextField {
            id: phrase
            width: parent.width
            accessibleName: placeholderText
            errorText: text !== "" && text.length < root.shortestPassphrase && !activeFocus
                ? qsTr("密码短语至少 %1 个字符").arg(root.shortestPassphrase) : ""
            objectName: "newPassphrase"
            placeholderText: qsTr("密码短语")
            secret: true
            visible: root.encrypts
        }
        OVTextField {
            id: repeated
            width: parent.width
            accessibleName: placeholderText
            errorText: text !== "" && text !== phrase.text && !activeFocus ? qsTr("两次输入不一致") : ""
            objectName: "repeatedPassphrase"
            placeholderText: qsTr("再次输入密码短语")
            secret: true
            visible: root.encrypts
        }
        OVParagraph {
            width: parent.width
            color: Theme.colours.sub
            font: Theme.hintFont
            objectName: "exportHint"
            text: root.hints[root.passwords]
        }
    }
}
