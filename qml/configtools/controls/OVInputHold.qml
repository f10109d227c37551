// An invisible sheet over the whole window that keeps the user's input from what lies under it.
import QtQuick
import QtQuick.Templates as T

T.Popup {
    id: root

    signal escapePressed

    parent: T.Overlay.overlay
    width: parent?.width ?? 0
    height: parent?.height ?? 0
    closePolicy: T.Popup.NoAutoClose
    dim: false
    focus: true
    modal: true

    contentItem: MouseArea {
        cursorShape: Qt.BusyCursor
        focus: true
        hoverEnabled: true
        Keys.onPressed: event => {
            event.accepted = true;
            if (event.key === Qt.Key_Escape)
                root.escapePressed();
        }
    }
}
