// A choice: where the new account of devices is stored: for these devices, as the default account, or not at all. It
// stores nothing.
import QtQuick
import configtools

Column {
    id: root

    property int keeping: AccountList.ForDevices  // the chosen AccountList.Keeping
    /// The width in pixels that shows all texts.
    readonly property int neededWidth: Theme.boxSize + Theme.unit
        + Math.ceil(Math.max(...choices.map(choice => Theme.bodyMetrics.advanceWidth(choice.text))))
    readonly property var choices: [
        {keeping: AccountList.ForDevices, objectName: "keepForDevices", text: qsTr("保存为这些设备的账号（推荐）")},
        {keeping: AccountList.AsDefault, objectName: "keepAsDefault", text: qsTr("设为默认账号，用于搜索和所有设备")},
        {keeping: AccountList.Unkept, objectName: "keepNot", text: qsTr("不保存，只用到下次搜索")}
    ]

    topPadding: Theme.half

    Accessible.role: Accessible.Grouping

    // qmllint disable unqualified
    Repeater {
        model: root.choices

        OVRadioButton {
            required property var modelData

            width: Math.min(implicitWidth, root.width)
            height: Theme.unit * 3
            checked: root.keeping === modelData.keeping
            objectName: modelData.objectName
            text: modelData.text
            onClicked: root.keeping = modelData.keeping
        }
    }
    // qmllint enable unqualified
}
