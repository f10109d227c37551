// A combo box whose current entry is set from outside. A selection by the user is only requested: the box keeps showing
// `chosen`.
import QtQuick
import configtools

OVComboBox {
    id: root

    property int chosen: -1  // index; -1: none
    property var source: null  // on a change the box shows `chosen` again
    signal indexRequested(int index)

    // A combo box selects the first entry of a new model.
    function follow() {
        currentIndex = chosen;
    }

    displayText: currentIndex < 0 ? "—" : currentText
    onActivated: index => {
        if (index !== chosen)
            indexRequested(index);
        follow();
    }
    onChosenChanged: follow()
    onModelChanged: follow()
    onSourceChanged: follow()
    Component.onCompleted: follow()
}
