// A menu whose entries are given when it opens: objects with "key", "text" and, if wanted, "enabled", "begins", which
// draws a line above the entry, and "checked" for one that has a check mark or not.
import QtQuick
import QtQml
import configtools

OVMenu {
    id: root

    property var entries: []
    signal chosen(string key)

    /// `place` has "item", "x", "y" and "byKey". Opened with a key, the first entry is the current one.
    function offer(entries, place) {
        root.entries = entries;
        popup(place.item, place.x, place.y);
        if (place.byKey)
            currentIndex = entries.findIndex(entry => entry.enabled ?? true);
    }

    // qmllint disable unqualified
    Instantiator {
        model: root.entries

        OVMenuItem {
            required property var modelData

            begins: modelData.begins ?? false
            checked: modelData.checked ?? false
            enabled: modelData.enabled ?? true
            objectName: modelData.key + "Item"
            text: modelData.text
            ticks: modelData.checked !== undefined
            onTriggered: root.chosen(modelData.key)
        }

        onObjectAdded: (index, object) => root.insertItem(index, object)
        onObjectRemoved: (index, object) => root.removeItem(object)
    }
    // qmllint enable unqualified
}
