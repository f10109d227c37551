// Reports on the visible page why a batch is refused.
import QtQml
import configtools

QtObject {
    id: root

    required property Batches batches
    required property bool shown
    signal notify(string message, int severity)

    readonly property Connections reports: Connections {
        enabled: root.shown
        target: root.batches

        function onRefused(message) {
            root.notify(message, OVToast.Refusal);
        }
    }
}
