// Short messages that need no response. Only the newest one is shown, with the number of the others, which wait behind
// it. A click removes it, or the end of its time, which starts again when it becomes the newest one and when the
// pointer leaves it. Then the message before it is shown. A dialog shows its own messages itself (OVDialog.inform).
import QtQuick
import QtQuick.Templates as T
import configtools

T.Popup {
    id: root

    /// A refusal names the obstacle to an action. It is removed with the obstacle, see removeRefusals().
    enum Severity { Information, Success, Error, Refusal }

    readonly property int maximumCount: 3  // a further message removes the oldest one

    /// Area of the messages, in window coordinates. They are centred in it, in front of dialogs, and not wider than the
    /// area, unless that is narrower than Theme.toastLeast. A message higher than the area extends below it. The window
    /// chooses an area without tabs, rows and buttons.
    property rect area: Qt.rect(((parent?.width ?? 0) - Theme.toastWidth) / 2, Theme.half, Theme.toastWidth, 0)
    readonly property real mostWidth: Math.min(Theme.toastMost, Math.max(area.width, Theme.toastLeast))
    readonly property Item newest: toasts.newest(toasts.revision)

    /// The time to read a text, in ms; Theme.longestToastDuration at most.
    function readingTime(text) {
        const firstIdeograph = "\u2e80";
        const times = Array.from(text, character => character < firstIdeograph ? Theme.letterReading : Theme.ideographReading);
        return Math.min(Theme.longestToastDuration, times.reduce((sum, time) => sum + time, Theme.toastNoticed));
    }

    /// Shows a message. `severity` is a Severity, Information by default; `duration` is in ms, the default depends on
    /// the severity. A longer text stays for its readingTime(). A message with the same text is replaced.
    function show(text, severity, duration) {
        for (let i = messages.count - 1; i >= 0; --i) {
            if (messages.get(i).message === text)
                messages.remove(i);  // a repeated message is shown as new
        }
        if (messages.count === maximumCount)
            messages.remove(0);
        const defaultDuration = severity === OVToast.Error || severity === OVToast.Refusal ? Theme.errorToastDuration : Theme.toastDuration;
        messages.append({
            message: text, severity: severity ?? OVToast.Information,
            duration: Math.max(duration ?? defaultDuration, readingTime(text))
        });
        open();
    }

    /// Removes refusals: the obstacle may no longer exist.
    function removeRefusals() {
        for (let i = messages.count - 1; i >= 0; --i) {
            if (messages.get(i).severity === OVToast.Refusal)
                messages.remove(i);
        }
    }

    /// Removes all messages.
    function clear() {
        messages.clear();
    }

    parent: T.Overlay.overlay
    x: Math.round(Math.min(area.x + (area.width - width) / 2, (parent?.width ?? 0) - width - Theme.half))
    y: Math.round(area.y + Math.max(0, (area.height - height) / 2))
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

            property int revision: 0  // incremented when a toast is added or removed

            function newest(_) {
                return count > 0 ? itemAt(count - 1) : null;
            }

            model: messages
            onItemAdded: ++revision
            onItemRemoved: ++revision

            Rectangle {
                id: toast

                required property int index
                required property int severity
                required property int duration
                required property string message
                readonly property color sign: severity === OVToast.Error ? Theme.colours.bad
                    : severity === OVToast.Refusal ? Theme.colours.warn
                    : severity === OVToast.Success ? Theme.colours.ok : Theme.colours.accent

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
                Accessible.name: message

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
                    name: toast.severity === OVToast.Error ? "error" : toast.severity === OVToast.Refusal ? "alert"
                        : toast.severity === OVToast.Success ? "ok" : "about"
                }
                OVParagraph {
                    id: text
                    x: icon.x + icon.width + 10
                    y: toast.padding
                    width: Math.min(Math.ceil(implicitWidth), toast.textRoom)
                    objectName: "toastText"
                    text: toast.message
                }
                OVLabel {
                    id: waiting
                    x: text.x + text.width + toast.padding
                    y: toast.padding
                    height: text.lineHeight
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
                    interval: toast.duration
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
