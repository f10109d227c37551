// Forwards Batches.refused() as notify() while the page is visible: all pages share one Batches. The message is the
// reason why a batch was not started, or a hint about devices that were left out of a retry. In the second case the
// batch may run for the others.
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
