// A modal box in the window: a head with a title, the content, a foot with buttons. Escape closes it, Enter
// does what its primary button does, and the keyboard stays inside.
import QtQuick
import QtQuick.Templates as T
import configtools

T.Popup {
    id: root

    property string title
    property string okText: qsTr("确定")
    property string cancelText: qsTr("取消")
    property int okKind: OVButton.Primary
    property bool okEnabled: true
    property bool hasCancel: true
    property bool closable: true
    property bool dense: false  // for a small box: its head, its foot and the room around its content are lower
    property bool busy: false  // at what was accepted: the primary button turns, and nothing can be done meanwhile
    property bool cancellable: false  // also while it is busy
    property string notice  // about what the dialog holds, above its buttons
    property int noticeKind: OVToast.Error
    property alias footContent: footSlot.data  // beside the buttons
    readonly property alias buttonsWidth: buttons.width
    default property alias content: body.data
    signal accepted
    signal rejected

    // While it goes a dialog takes no answer: a second click is not a second answer.
    property bool leaving: false
    onAboutToHide: leaving = true
    onAboutToShow: {
        leaving = false;
        notice = "";
        body.focus = true;  // not the button that answered the last time
    }

    function accept() {
        if (!okEnabled || leaving || busy)
            return;
        notice = "";
        accepted();
    }
    function reject() {
        if (leaving || busy && !cancellable)
            return;
        close();
        rejected();
    }

    /// A key that is held down answers once.
    function acceptOnce(event) {
        if (!event.isAutoRepeat)
            accept();
    }

    /// Input is not accepted: the first field that shows an error gets the keyboard. When no field shows one, the message
    /// stands above the buttons.
    function refuse(message) {
        const field = faultyField(body);
        if (field)
            field.forceActiveFocus(Qt.OtherFocusReason);
        else
            inform(message, OVToast.Error);
    }

    function inform(message, kind) {
        noticeKind = kind;
        notice = message;
    }

    function faultyField(item) {
        for (let i = 0; i < item.children.length; ++i) {
            const child = item.children[i];
            if (!child.visible || !child.enabled)
                continue;
            const found = (child.errorText ?? "") !== "" ? child : faultyField(child);
            if (found)
                return found;
        }
        return null;
    }

    function focusCancel() {
        cancel.forceActiveFocus();
    }

    parent: T.Overlay.overlay
    x: Math.round(((parent?.width ?? 0) - width) / 2)
    y: Math.round(((parent?.height ?? 0) - height) / 2)
    width: Theme.dialogWidth
    height: implicitHeight
    readonly property int contentMargin: dense ? Theme.unit + Theme.line : Theme.pageMargin

    implicitHeight: head.height + body.implicitHeight + 2 * contentMargin + strip.height + foot.height
    closePolicy: T.Popup.NoAutoClose
    dim: true
    focus: true
    modal: true

    T.Overlay.modal: Rectangle {
        color: Theme.colours.scrim
        Behavior on opacity { NumberAnimation { duration: Theme.quick } }
    }

    contentItem: FocusScope {
        focus: true

        Keys.onEnterPressed: event => root.acceptOnce(event)
        Keys.onEscapePressed: root.reject()
        Keys.onReturnPressed: event => root.acceptOnce(event)

        Accessible.role: Accessible.Dialog
        Accessible.name: root.title

        Item {
            id: head
            width: parent.width
            height: root.dense ? Theme.denseHeadHeight : Theme.dialogHeadHeight

            OVLabel {
                anchors.left: parent.left
                anchors.leftMargin: Theme.pageMargin
                anchors.right: shut.left
                height: parent.height
                font: Theme.titleFont
                text: root.title
            }
            OVIconButton {
                id: shut
                anchors.right: parent.right
                anchors.rightMargin: Theme.unit
                anchors.verticalCenter: parent.verticalCenter
                focusPolicy: Qt.NoFocus
                iconName: "close"
                iconSize: Theme.boxSize
                objectName: "dialogCloseButton"
                toolTip: qsTr("关闭")
                visible: root.closable
                onClicked: root.reject()
            }
            Rectangle {
                anchors.bottom: parent.bottom
                width: parent.width
                height: Theme.line
                color: Theme.colours.line
            }
        }

        FocusScope {
            id: body
            x: Theme.pageMargin
            y: head.height + root.contentMargin
            width: parent.width - 2 * Theme.pageMargin
            height: strip.y - y - root.contentMargin
            enabled: !root.busy
            focus: true
            implicitHeight: childrenRect.height
        }

        Item {
            id: strip
            x: Theme.pageMargin
            y: foot.y - height
            width: parent.width - 2 * Theme.pageMargin
            height: root.notice === "" ? 0 : words.height + root.contentMargin
            visible: root.notice !== ""

            Accessible.role: Accessible.AlertMessage
            Accessible.name: root.notice

            OVNotice {
                id: words
                width: parent.width
                iconColor: root.noticeKind === OVToast.Error ? Theme.colours.bad
                    : root.noticeKind === OVToast.Success ? Theme.colours.ok : Theme.colours.accent
                iconName: root.noticeKind === OVToast.Error ? "error"
                    : root.noticeKind === OVToast.Success ? "ok" : "about"
                text: root.notice
                wordsName: "dialogNotice"
            }
        }

        Item {
            id: foot
            y: parent.height - height
            width: parent.width
            height: root.dense ? Theme.denseFootHeight : Theme.dialogFootHeight

            Rectangle {
                anchors.fill: parent
                color: Theme.colours.foot
                radius: Theme.paneRadius
            }
            Rectangle {
                width: parent.width
                height: Theme.paneRadius
                color: Theme.colours.foot
            }
            Rectangle {
                width: parent.width
                height: Theme.line
                color: Theme.colours.line
            }
            FocusScope {
                id: footSlot
                anchors.left: parent.left
                anchors.leftMargin: Theme.pageMargin
                anchors.right: buttons.left
                anchors.rightMargin: Theme.pageMargin
                height: parent.height
                enabled: !root.busy
            }
            Row {
                id: buttons
                anchors.right: parent.right
                anchors.rightMargin: Theme.pageMargin
                anchors.verticalCenter: parent.verticalCenter
                layoutDirection: Qt.RightToLeft
                spacing: Theme.unit

                OVButton {
                    busy: root.busy
                    enabled: root.okEnabled && !root.busy
                    kind: root.okKind
                    objectName: "okButton"
                    text: root.okText
                    onClicked: root.accept()
                }
                OVButton {
                    id: cancel
                    enabled: !root.busy || root.cancellable
                    objectName: "cancelButton"
                    text: root.cancelText
                    visible: root.hasCancel
                    onClicked: root.reject()
                }
            }
        }
    }

    background: Rectangle {
        color: Theme.colours.surface
        radius: Theme.paneRadius

        OVShadow { depth: 24 }
    }

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.quick }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Theme.quick }
    }
}
