// A row of an OVTree: a group, or a device of a group. Its required properties are the roles of DeviceTreeRows. The
// view reuses it for other rows: signals have the identity of the row, not its index. The row only reports input.
import QtQuick
import configtools

Rectangle {
    id: root

    required property int index
    required property string identity  // unique name of the row in the model
    required property string title  // of a group its name (a device type or failure reason), of a device "address:port"
    required property string label  // shown text of the title
    required property string detail  // text after the label of a device
    required property int tick  // a Qt::CheckState
    required property int result  // of the last batch: 0 success, an OVTreeModel.Result, or another LoginResult
    required property bool isGroup
    required property bool isOpen  // of a group: its devices are shown
    required property int deviceCount  // of a group
    required property string failure  // failed batches of the device and reasons, one for each line; "" for none
    required property bool onlyNotDone  // no batch failed, but some did not reach the device
    required property bool isNew  // the last search found the device for the first time
    property var describer  // object with resultText(result, ipport), which returns the text of the tool tip
    property bool current: false  // row of the keyboard
    property bool busy: false  // a spinner replaces the result
    property bool choosing: false  // a click on a device chooses it: only `chosen` colours the row
    property bool chosen: false  // the device is the chosen one
    property string pressedIdentity  // identity at the press of a mouse button, "" without a press
    signal clicked(string identity)  // outside of the check box
    signal openToggled(string identity)  // by the arrow or a double click; without effect for a device
    signal tickToggled(string identity)  // the check state does not change
    signal menuRequested(string identity, real x, real y)  // in coordinates of the view's content

    /// The identity at the time of the press: this item may show another row since. A screen reader clicks without a
    /// press.
    function takePressed() {
        const identity = pressedIdentity !== "" ? pressedIdentity : root.identity;
        pressedIdentity = "";
        return identity;
    }

    readonly property bool hasResult: !isGroup && result !== OVTreeModel.NoResult  // NoResult: no batch yet
    readonly property bool waits: result === OVTreeModel.WaitsForPassword
    readonly property bool incomplete: result === OVTreeModel.PartlyDone || result === BatchReport.NotDone
    readonly property bool skipped: result === BatchReport.NotInitialised || result === BatchReport.Upgrading
    // A failed result is already shown by the result icon.
    readonly property bool marked: failure !== "" && !busy && !(hasResult && result > 0)
    readonly property int signsWidth: (busy || hasResult ? Theme.boxSize + Theme.unit : 0)
        + (marked ? Theme.boxSize + Theme.unit : 0) + (isNew ? newTag.width + Theme.unit : 0)

    height: Theme.controlHeight
    color: chosen || (current && !choosing) ? Theme.colours.rowSelected
        : pointer.hovered ? Theme.colours.hover : Theme.colours.clear
    objectName: isGroup ? "group_" + title : "device_" + title

    Accessible.role: Accessible.TreeItem
    Accessible.name: title
    Accessible.selected: chosen
    Accessible.checkable: true
    Accessible.checked: tick === Qt.Checked

    ListView.onPooled: pressedIdentity = ""  // a press released elsewhere

    HoverHandler {
        id: pointer
    }
    Rectangle {  // row of the keyboard, if another one is chosen
        anchors.fill: parent
        border.color: Theme.colours.focusRing
        border.width: 2
        color: Theme.colours.clear
        visible: root.current && root.choosing && !root.chosen
    }
    MouseArea {
        anchors.fill: parent
        onPressed: root.pressedIdentity = root.identity
        onClicked: root.clicked(root.takePressed())
        onDoubleClicked: root.openToggled(root.takePressed())
    }
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.RightButton
        onPressed: mouse => root.menuRequested(root.identity, root.x + mouse.x, root.y + mouse.y)
    }

    OVIconButton {
        x: Theme.half
        anchors.verticalCenter: parent.verticalCenter
        implicitWidth: Theme.unit * 3
        implicitHeight: Theme.unit * 3
        focusPolicy: Qt.NoFocus
        iconName: root.isOpen ? "down" : "right"
        iconSize: Theme.smallIconSize
        objectName: "open_" + root.title
        toolTip: root.isOpen ? qsTr("收起") : qsTr("展开")
        visible: root.isGroup
        onPressed: root.pressedIdentity = root.identity
        onClicked: root.openToggled(root.takePressed())
    }

    // The click area is larger than the check box.
    MouseArea {
        x: Theme.treeIndent + (root.isGroup ? 0 : Theme.treeIndent)
        width: Theme.boxSize + 2 * Theme.unit
        height: parent.height
        objectName: "tick_" + root.title
        onPressed: root.pressedIdentity = root.identity
        onClicked: root.tickToggled(root.takePressed())

        OVCheckBox {
            anchors.centerIn: parent
            checkState: root.tick
            focusPolicy: Qt.NoFocus
            hoverEnabled: false
            tristate: true
            nextCheckState: () => checkState
            Accessible.ignored: true

            // The model owns the check state.
            MouseArea {
                anchors.fill: parent
                onPressed: root.pressedIdentity = root.identity
                onClicked: root.tickToggled(root.takePressed())
            }
        }

        OVLabel {
            id: titleLabel
            x: parent.width
            width: Math.min(implicitWidth, root.width - parent.x - x - Theme.pageMargin
                - root.signsWidth)
            height: parent.height
            font: root.isGroup ? Theme.titleFont : Theme.figureFont
            text: root.label
        }
        OVLabel {
            x: titleLabel.x + titleLabel.width + Theme.unit
            width: Math.max(0, root.width - parent.x - x - Theme.pageMargin
                - root.signsWidth)
            height: parent.height
            color: Theme.colours.faint
            font: root.isGroup ? Theme.figureFont : Theme.hintFont
            text: root.isGroup ? root.deviceCount : root.detail
        }
    }

    OVSpinner {
        id: spinner
        anchors.right: parent.right
        anchors.rightMargin: Theme.pageMargin
        anchors.verticalCenter: parent.verticalCenter
        running: root.busy
        size: Theme.boxSize
        visible: root.busy
    }
    OVIcon {
        id: sign
        anchors.right: parent.right
        anchors.rightMargin: Theme.pageMargin
        anchors.verticalCenter: parent.verticalCenter
        color: root.result === 0 ? Theme.colours.ok : root.waits ? Theme.colours.accent
            : root.incomplete ? Theme.colours.warn : root.skipped ? Theme.colours.sub : Theme.colours.bad
        name: root.result === 0 ? "ok" : root.waits ? "check" : root.incomplete ? "alert" : root.skipped ? "mixed" : "error"
        objectName: "resultSign"
        size: Theme.boxSize
        visible: root.hasResult && !root.busy

        HoverHandler {
            id: signPointer
        }
        OVToolTip {
            shown: signPointer.hovered
            text: signPointer.hovered ? root.describer.resultText(root.result, root.title) : ""
        }
    }
    OVTag {
        id: newTag
        anchors.right: parent.right
        anchors.rightMargin: Theme.pageMargin + root.signsWidth - width - Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        objectName: "newTag"
        text: qsTr("新")
        visible: root.isNew
    }
    OVFailedSign {
        anchors.right: sign.visible ? sign.left : parent.right
        anchors.rightMargin: sign.visible ? Theme.unit : Theme.pageMargin
        anchors.verticalCenter: parent.verticalCenter
        failure: root.marked ? root.failure : ""
        onlyNotDone: root.onlyNotDone
    }
}
