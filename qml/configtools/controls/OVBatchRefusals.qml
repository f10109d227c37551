// Emits notify() with the reason when Batches refuses to start a batch, as while another one runs, but only for the
// page that is visible: all pages share one Batches.
import QtQml
import configtools

QtObject {
    id: root

    required property Batches batches  // starts batches for all pages; one batch runs at a time
    required property bool shown  // the page is visible
    signal notify(string message, int severity)  // severity: always OVToast.Refusal

    readonly property Connections reports: Connections {
        enabled: root.shown
        target: root.batches

        function onRefused(message) {
            root.notify(message, OVToast.Refusal);
        }
    }
}
