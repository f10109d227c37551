// A combo box whose current entry is set from outside. A selection by the user is only requested: the box shows
// `chosen` until the owner changes it. Without a chosen entry it shows a dash.
import QtQuick
import configtools

OVComboBox {
    id: root

    property int chosen: -1  // index in the model; -1: none
    /// The object from which the owner reads `chosen`, such as a map of values. When it is replaced, the box shows
    /// `chosen` again, also if that has the same value; the box does not use its content.
    property var source: null
    signal indexRequested(int index)  // not emitted for the chosen entry

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
