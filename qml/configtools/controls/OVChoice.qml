// A choice whose entry comes from outside. What the user picks is told; what is shown follows what came of it.
import QtQuick
import configtools

OVComboBox {
    id: root

    property int chosen: -1
    property var source: null  // whenever it changes, the choice shows the chosen entry again
    signal picked(int index)

    // A new list puts a combo box on its first entry.
    function follow() {
        currentIndex = chosen;
    }

    displayText: currentIndex < 0 ? "—" : currentText
    onActivated: index => {
        if (index !== chosen)
            picked(index);
        follow();
    }
    onChosenChanged: follow()
    onModelChanged: follow()
    onSourceChanged: follow()
    Component.onCompleted: follow()
}
