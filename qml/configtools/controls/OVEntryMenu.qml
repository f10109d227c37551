// A menu with entries set on opening: objects with "key", "text" and optionally "enabled" (true by default),
// "startsGroup" (a line above the entry) and "checked" (bool; the entry has room for a check mark).
import QtQuick
import QtQml
import configtools

OVMenu {
    id: root

    property var entries: []
    signal chosen(string key)  // "key" of the chosen entry

    /// Opens the menu with these entries. `position` is a map: "x" and "y" in pixels of the item "item", and "byKey"
    /// (bool). If opened by a key, the first enabled entry is current.
    function openAt(entries, position) {
        root.entries = entries;
        popup(position.item, position.x, position.y);
        if (position.byKey)
            currentIndex = entries.findIndex(entry => entry.enabled ?? true);
    }

    // qmllint disable unqualified
    Instantiator {
        model: root.entries

        OVMenuItem {
            required property var modelData

            startsGroup: modelData.startsGroup ?? false
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
