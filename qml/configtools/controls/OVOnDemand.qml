// Holds what is made only when it is first asked for: pages and dialogs that many runs of the program never show.
// A page is asked for by being shown, a dialog by wanted().
import QtQuick

Loader {
    id: root

    property bool made: false

    /// The thing itself, made now if it was not yet.
    function wanted() {
        made = true;
        return item;
    }

    active: made
    onVisibleChanged: if (visible) made = true
}
