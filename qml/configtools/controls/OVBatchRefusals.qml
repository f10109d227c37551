// Passes the reason of a refused batch to the page, while the page is visible.
import QtQml
import configtools

QtObject {
    id: root

    required property Batches batches
    required property bool shown  // the page is visible
    signal notify(string message, int severity)  // severity: of OVToast

    readonly property Connections reports: Connections {
        enabled: root.shown
        target: root.batches

        function onRefused(message) {
            root.notify(message, OVToast.Refusal);
        }
    }
}
