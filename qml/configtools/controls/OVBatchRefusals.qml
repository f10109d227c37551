// Tells the user of the page that is shown why a batch does not begin.
import QtQuick
import configtools

Connections {
    id: root

    required property Batches batches
    required property bool shown
    signal said(string message, int kind)

    enabled: shown
    target: batches

    function onRefused(message) {
        root.said(message, OVToast.Error);
    }
}
