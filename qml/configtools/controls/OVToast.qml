// Short messages that need no answer, up to three on top of each other with the newest at the bottom. Errors stay
// longer; a click sends one away. They float over dialogs too, since a dialog may be what the message is about, and
// keep to the left, since a dialog has its buttons on the right.
import QtQuick
import QtQuick.Templates as T
import configtools

T.Popup {
    id: root

    enum Kind { Information, Success, Error }

    readonly property int shown: 3

    /// `stay` in milliseconds; left out, it depends on the kind.
    function show(text, kind, stay) {
        for (let i = messages.count - 1; i >= 0; --i) {
            if (messages.get(i).words === text)
                messages.remove(i);  // said again, it stays from now
        }
        if (messages.count === shown)
            messages.remove(0);
        const usualStay = kind === OVToast.Error ? Theme.errorToastStay : Theme.toastStay;
        messages.append({words: text, kind: kind ?? OVToast.Information, stay: stay ?? usualStay});
        open();
    }

    parent: T.Overlay.overlay
    x: Theme.pageMargin
    y: (parent?.height ?? 0) - height - Theme.footHeight - Theme.unit
    z: 1000
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
        id: stack

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
                    : kind === OVToast.Success ? Theme.colours.ok : Theme.colours.accent

                // The stack stands on its foot: a toast that stays moves only by what came or went below it.
                property real foot: index < toasts.count - 1
                    ? toasts.heightFrom(index + 1, toasts.revision) + Theme.unit : 0
                Behavior on foot { NumberAnimation { duration: Theme.quick; easing.type: Easing.OutQuad } }

                y: stack.height - foot - height
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
                    name: toast.kind === OVToast.Error ? "error"
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
