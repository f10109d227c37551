// A modal dialog in the window: title, content, buttons. Enter acts like the primary button, unless the item with the
// keyboard focus uses the key itself, as buttons do. Escape and the close button act like the cancel button, also if
// that is hidden. The keyboard focus stays inside. It is limited to the size of the window; larger content scrolls.
import QtQuick
import QtQuick.Templates as T
import configtools

T.Popup {
    id: root

    property string title
    property string okText: qsTr("确定")
    property string cancelText: qsTr("取消")
    property int okKind: OVButton.Primary  // an OVButton.Kind
    property bool okEnabled: true
    property bool hasCancel: true  // shows the cancel button
    property bool dense: false  // for a small dialog: smaller head, foot and margins
    property bool busy: false  // set by the owner while accepted work runs: a spinner; input is disabled
    property bool cancellable: false  // may close while it is busy; the owner ends the work on rejected()
    property string notice  // text above the buttons, "" for none; removed by accept() and on opening
    property int noticeSeverity: OVToast.Error  // an OVToast.Severity
    property alias footContent: footSlot.data  // left of the buttons
    readonly property alias buttonsWidth: buttons.width  // of the buttons on the right of the foot
    property int wantedWidth: Theme.dialogWidth  // less if the window is too narrow
    property int leastHeight: 0  // minimum height, if the window has room for it
    property bool scrolls: true  // false if the content fits itself to the height of the dialog
    // Limits of the dialog in the window.
    readonly property int mostWidth: parent ? parent.width - 4 * Theme.pageMargin : wantedWidth
    readonly property int mostHeight: parent ? parent.height - 2 * Theme.pageMargin : implicitHeight
    /// Maximum height of the content in pixels; smaller while a notice is shown above the buttons.
    readonly property int contentRoom: mostHeight - head.height - strip.height - foot.height - 2 * contentMargin
    default property alias content: body.data
    signal accepted  // by the primary button; the dialog stays open: the owner closes it
    signal rejected  // by the cancel button, the close button or Escape; the dialog is closing. Not by close()

    // The dialog ignores input while it closes: a second click must not count.
    property bool leaving: false
    onAboutToHide: leaving = true
    onAboutToShow: {
        leaving = false;
        notice = "";
        view.contentY = 0;
        body.focus = true;  // not the button that closed it the last time
    }

    /// Acts like the primary button. Ignored if that is disabled, while the dialog is busy and while it closes.
    function accept() {
        if (!okEnabled || leaving || busy)
            return;
        notice = "";
        accepted();
    }
    /// Closes the dialog, then emits rejected(). Ignored while it closes, and while it is busy unless `cancellable`.
    function reject() {
        if (leaving || busy && !cancellable)
            return;
        close();
        rejected();
    }

    /// accept() for a key event; ignores the auto-repeat of the key.
    function acceptOnce(event) {
        if (!event.isAutoRepeat)
            accept();
    }

    /// Reports that the input is not accepted; the dialog stays open. The first visible and enabled field with an
    /// `errorText` gets the keyboard focus. The message is shown above the buttons only if no field has an error.
    function refuse(message) {
        const field = faultyField(body);
        if (field)
            field.forceActiveFocus(Qt.OtherFocusReason);
        else
            inform(message, OVToast.Error);
    }

    /// Shows a message above the buttons. `severity` is an OVToast.Severity.
    function inform(message, severity) {
        noticeSeverity = severity;
        notice = message;
    }

    /// The first visible and enabled item inside `item` with an `errorText`; null for none.
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

    /// Gives the cancel button the keyboard focus.
    function focusCancel() {
        cancel.forceActiveFocus();
    }

    parent: T.Overlay.overlay
    x: Math.round(((parent?.width ?? 0) - width) / 2)
    y: Math.round(((parent?.height ?? 0) - height) / 2)
    width: Math.min(wantedWidth, mostWidth)
    height: Math.min(Math.max(leastHeight, implicitHeight), mostHeight)
    readonly property int contentMargin: dense ? Theme.unit + Theme.line : Theme.pageMargin

    implicitHeight: head.height + body.implicitHeight + 2 * contentMargin + strip.height + foot.height
    closePolicy: T.Popup.NoAutoClose
    dim: true
    focus: true
    modal: true

    T.Overlay.modal: Rectangle {
        objectName: "dialogDim"  // FileDrop finds an open dialog by it
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
                anchors.right: closeButton.left
                height: parent.height
                font: Theme.titleFont
                text: root.title
            }
            OVIconButton {
                id: closeButton
                anchors.right: parent.right
                anchors.rightMargin: Theme.unit
                anchors.verticalCenter: parent.verticalCenter
                focusPolicy: Qt.NoFocus
                iconName: "close"
                iconSize: Theme.boxSize
                objectName: "dialogCloseButton"
                toolTip: qsTr("关闭")
                onClicked: root.reject()
            }
            Rectangle {
                anchors.bottom: parent.bottom
                width: parent.width
                height: Theme.line
                color: Theme.colours.line
            }
        }

        Flickable {
            id: view
            // Scrolls to the item with the keyboard focus.
            readonly property Item focused: Window.activeFocusItem

            y: head.height
            width: parent.width
            height: strip.y - y
            boundsBehavior: Flickable.StopAtBounds
            clip: interactive
            contentHeight: body.height + 2 * root.contentMargin
            interactive: contentHeight > height
            onFocusedChanged: {
                let above = focused;
                while (above && above !== body)
                    above = above.parent;
                if (!above || !interactive)
                    return;
                const top = focused.mapToItem(body, 0, 0).y;
                const least = top + focused.height + 2 * root.contentMargin - height;
                contentY = Math.max(0, Math.min(contentHeight - height, top, Math.max(contentY, least)));
            }

            T.ScrollBar.vertical: OVScrollBar {}

            FocusScope {
                id: body
                readonly property real room: view.height - 2 * root.contentMargin
                x: Theme.pageMargin
                y: root.contentMargin
                width: view.width - 2 * x
                height: root.scrolls ? Math.max(room, implicitHeight) : room
                enabled: !root.busy
                focus: true
                implicitHeight: childrenRect.height
            }
        }

        Item {
            id: strip
            x: Theme.pageMargin
            y: foot.y - height
            width: parent.width - 2 * Theme.pageMargin
            height: root.notice === "" ? 0 : noticeLabel.height + root.contentMargin
            visible: root.notice !== ""

            Accessible.role: Accessible.AlertMessage
            Accessible.name: root.notice

            OVNotice {
                id: noticeLabel
                width: parent.width
                iconColor: root.noticeSeverity === OVToast.Error ? Theme.colours.bad
                    : root.noticeSeverity === OVToast.Success ? Theme.colours.ok : Theme.colours.accent
                iconName: root.noticeSeverity === OVToast.Error ? "error"
                    : root.noticeSeverity === OVToast.Success ? "ok" : "about"
                text: root.notice
                messageName: "dialogNotice"
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
