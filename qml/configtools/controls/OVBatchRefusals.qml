// Tells the user of the page that is shown why a batch does not begin.
import QtQml
import configtools

QtObject {
    id: root

    required property Batches batches
    required property bool shown
    signal said(string message, int kind)

    readonly property Connections reports: Connections {
        enabled: root.shown
        target: root.batches

        function onRefused(message) {
            root.said(message, OVToast.Refusal);
        }
    }
}
