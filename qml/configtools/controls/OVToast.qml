// Short messages that need no answer. The newest one is shown, with the number of those that wait behind it; each is shown
// for its whole time. Errors stay longer; a click sends one away. They have a place where no tabs, tool bars, rows and
// buttons are, in front of a dialog and the veil around it. A dialog has a place of its own for what concerns it.
import QtQuick
import QtQuick.Templates as T
import configtools

T.Popup {
    id: root

    /// A refusal names what is in the way of an action, which is no fault: it goes with that, see settle().
    enum Kind { Information, Success, Error, Refusal }

    readonly property int kept: 3

    /// Where messages are centred, and as wide as this at most. A higher message grows downwards.
    property rect band: Qt.rect(((parent?.width ?? 0) - Theme.toastWidth) / 2, Theme.half, Theme.toastWidth, 0)
    readonly property real mostWidth: Math.min(Theme.toastMost, Math.max(band.width, Theme.toastLeast))
    readonly property Item newest: toasts.newest(toasts.revision)

    /// `stay` in milliseconds; left out, it depends on the kind.
    function show(text, kind, stay) {
        for (let i = messages.count - 1; i >= 0; --i) {
            if (messages.get(i).words === text)
                messages.remove(i);  // said again, it stays from now
        }
        if (messages.count === kept)
            messages.remove(0);
        const usualStay = kind === OVToast.Error || kind === OVToast.Refusal ? Theme.errorToastStay : Theme.toastStay;
        messages.append({words: text, kind: kind ?? OVToast.Information, stay: stay ?? usualStay});
        open();
    }

    /// What was in the way may have changed: refusals go.
    function settle() {
        for (let i = messages.count - 1; i >= 0; --i) {
            if (messages.get(i).kind === OVToast.Refusal)
                messages.remove(i);
        }
    }

    /// The user has turned to something else.
    function clear() {
        messages.clear();
    }

    parent: T.Overlay.overlay
    x: Math.round(Math.min(band.x + (band.width - width) / 2, (parent?.width ?? 0) - width - Theme.half))
    y: Math.round(band.y + Math.max(0, (band.height - height) / 2))
    z: 1
    closePolicy: T.Popup.NoAutoClose
    focus: false
    modal: false
    implicitWidth: newest?.width ?? 0
    implicitHeight: newest?.height ?? 0

    ListModel {
        id: messages
        onCountChanged: if (count === 0) root.close()
    }

    contentItem: Item {
        // qmllint disable unqualified
        Repeater {
            id: toasts

            property int revision: 0  // rises when a toast comes or goes

            function newest(_) {
                return count > 0 ? itemAt(count - 1) : null;
            }

            model: messages
            onItemAdded: ++revision
            onItemRemoved: ++revision

            Rectangle {
                id: toast

                required property int index
                required property int kind
                required property int stay
                required property string words
                readonly property color sign: kind === OVToast.Error ? Theme.colours.bad
                    : kind === OVToast.Refusal ? Theme.colours.warn
                    : kind === OVToast.Success ? Theme.colours.ok : Theme.colours.accent

                readonly property int padding: Theme.unit
                readonly property real textRoom: root.mostWidth - text.x - 2 * padding - (waiting.visible ? waiting.width : 0)

                width: root.mostWidth - textRoom + text.width
                height: text.implicitHeight + 2 * padding
                border.color: Theme.colours.line
                border.width: Theme.line
                color: Theme.colours.surface
                objectName: "toast"
                radius: Theme.paneRadius
                visible: index === toasts.count - 1

                Accessible.role: Accessible.AlertMessage
                Accessible.name: words

                OVShadow { depth: 12 }

                Rectangle {
                    x: Theme.line
                    y: Theme.unit
                    width: 3
                    height: parent.height - 2 * Theme.unit
                    color: toast.sign
                    radius: 1.5
                }
                OVIcon {
                    id: icon
                    x: 14
                    y: toast.padding
                    color: toast.sign
                    name: toast.kind === OVToast.Error ? "error" : toast.kind === OVToast.Refusal ? "alert"
                        : toast.kind === OVToast.Success ? "ok" : "about"
                }
                OVParagraph {
                    id: text
                    x: icon.x + icon.width + 10
                    y: toast.padding
                    width: Math.min(Math.ceil(implicitWidth), toast.textRoom)
                    objectName: "toastText"
                    text: toast.words
                }
                OVLabel {
                    id: waiting
                    x: text.x + text.width + toast.padding
                    y: toast.padding
                    color: Theme.colours.sub
                    font: Theme.figureFont
                    objectName: "toastsWaiting"
                    text: "+" + (toasts.count - 1)
                    visible: toasts.count > 1
                }
                NumberAnimation on opacity { from: 0; to: 1; duration: Theme.quick }
                TapHandler {
                    onTapped: messages.remove(toast.index)
                }
                Timer {
                    interval: toast.stay
                    running: toast.visible && !hover.hovered
                    onTriggered: messages.remove(toast.index)
                }
                HoverHandler {
                    id: hover
                }
            }
        }
        // qmllint enable unqualified
    }
}
