// Name and version of the application, for copying.
import QtQuick
import configtools

OVDialog {
    id: root

    required property string productName
    required property string version

    wantedWidth: Theme.messageWidth
    objectName: "aboutDialog"
    hasCancel: false
    onAccepted: close()

    Row {
        width: parent.width
        spacing: Theme.controlGap

        OVLogo {
            id: logo
            large: true
            name: root.productName
        }
        Column {
            width: parent.width - logo.width - copy.width - 2 * parent.spacing

            OVLabel {
                width: parent.width
                font: Theme.titleFont
                text: root.productName
            }
            TextEdit {
                id: versionText
                width: parent.width
                color: Theme.colours.sub
                font: Theme.figureFont
                objectName: "versionText"
                readOnly: true
                renderType: Theme.textRendering
                selectByMouse: true
                selectedTextColor: Theme.colours.text
                selectionColor: Theme.colours.rowSelected
                text: root.version
                textFormat: TextEdit.PlainText

                Accessible.name: text
            }
        }
        OVIconButton {
            id: copy
            anchors.verticalCenter: parent.verticalCenter
            iconName: "copy"
            objectName: "copyVersionButton"
            toolTip: qsTr("复制版本号")
            onClicked: {
                versionText.selectAll();
                versionText.copy();
                versionText.deselect();
                root.inform(qsTr("已复制到剪贴板"), OVToast.Success);
            }
        }
    }
}
