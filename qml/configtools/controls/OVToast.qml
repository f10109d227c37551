// Short messages that need no answer, up to three below each other with the newest at the top. Errors stay longer; a
// click sends one away. They hang from the upper edge of the window, where no rows are, in front of a dialog and the veil
// around it. A dialog has a place of its own for what concerns it.
import QtQuick
import QtQuick.Templates as T
import configtools

T.Popup {
    id: root

    /// A refusal names what is in the way of an action, which is no fault: it goes with that, see settle().
    enum Kind { Information, Success, Error, Refusal }

    readonly property int shown: 3

    /// `stay` in milliseconds; left out, it depends on the kind.
    function show(text, kind, stay) {
        for (let i = messages.count - 1; i >= 0; --i) {
            if (messages.get(i).words === text)
                messages.remove(i);  // said again, it stays from now
        }
        if (messages.count === shown)
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
    x: Math.round(((parent?.width ?? 0) - width) / 2)
    y: Theme.half
    z: 1
    closePolicy: T.Popup.NoAutoClose
    focus: false
    modal: false
    implicitWidth: Theme.toastWidth
    implicitHeight: toasts.heightFrom(0, toasts.revision)

    ListModel {
        id: messages
        onCountChanged: if (count === 0) root.close()
    }

    contentItem: Item {
        // qmllint disable unqualified
        Repeater {
            id: toasts

            property int revision: 0  // rises when a toast comes or goes

            /// Height of the toasts from `first` on, with the gaps between them.
            function heightFrom(first, _) {
                let sum = 0;
                for (let i = first; i < count; ++i)
                    sum += (itemAt(i)?.height ?? 0) + (i > first ? Theme.unit : 0);
                return sum;
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

                // A toast that stays moves only by what came or went above it.
                y: index < toasts.count - 1 ? toasts.heightFrom(index + 1, toasts.revision) + Theme.unit : 0
                Behavior on y { NumberAnimation { duration: Theme.quick; easing.type: Easing.OutQuad } }

                width: Theme.toastWidth
                height: text.implicitHeight + 24
                border.color: Theme.colours.line
                border.width: Theme.line
                color: Theme.colours.surface
                objectName: "toast"
                radius: Theme.paneRadius

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
                    y: 12
                    color: toast.sign
                    name: toast.kind === OVToast.Error ? "error" : toast.kind === OVToast.Refusal ? "alert"
                        : toast.kind === OVToast.Success ? "ok" : "about"
                }
                OVParagraph {
                    id: text
                    anchors.left: icon.right
                    anchors.leftMargin: 10
                    anchors.right: parent.right
                    anchors.rightMargin: 16
                    y: 12
                    objectName: "toastText"
                    text: toast.words
                }
                NumberAnimation on opacity { from: 0; to: 1; duration: Theme.quick }
                TapHandler {
                    onTapped: messages.remove(toast.index)
                }
                Timer {
                    interval: toast.stay
                    running: !hover.hovered
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
