// The about box: name and version of the application, where the version can be copied, and on request the licences of
// the software of others. The owner sets `title`.
import QtQuick
import QtQuick.Templates as T
import configtools

OVDialog {
    id: root

    required property string productName  // shown with the logo
    required property string version

    wantedWidth: licences.visible ? Theme.responseWindowWidth : Theme.messageWidth
    objectName: "aboutDialog"
    hasCancel: false
    onAboutToShow: licences.visible = false
    onAccepted: close()

    footContent: OVLinkButton {
        anchors.verticalCenter: parent.verticalCenter
        objectName: "licencesButton"
        text: qsTr("第三方软件许可")
        visible: !licences.visible
        onClicked: {
            licences.visible = true;
            licences.forceActiveFocus();
        }
    }

    Row {
        id: heading
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

    ListView {
        id: licences
        y: heading.height + Theme.controlGap
        width: parent.width
        height: visible ? Math.min(Theme.detailHeight, root.contentRoom - y) : 0
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        model: visible ? Licences.lines : []
        objectName: "licenceLines"
        visible: false

        Accessible.role: Accessible.StaticText
        Accessible.name: Licences.text

        T.ScrollBar.vertical: OVScrollBar {}

        Keys.onPressed: event => {
            const steps = {
                [Qt.Key_Down]: Theme.rowHeight, [Qt.Key_Up]: -Theme.rowHeight,
                [Qt.Key_PageDown]: height, [Qt.Key_PageUp]: -height
            };
            event.accepted = true;
            if (event.key === Qt.Key_Home)
                positionViewAtBeginning();
            else if (event.key === Qt.Key_End)
                positionViewAtEnd();
            else if (!(event.key in steps))
                event.accepted = false;
            else
                contentY = Math.max(0, Math.min(contentHeight - height, contentY + steps[event.key]));
        }

        // qmllint disable unqualified
        delegate: Text {
            required property string modelData

            width: ListView.view.width - Theme.pageMargin
            color: Theme.colours.text
            font: Theme.figureFont
            renderType: Theme.textRendering
            text: modelData
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
        }
        // qmllint enable unqualified
    }
}
