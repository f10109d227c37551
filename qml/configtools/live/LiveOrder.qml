// The devices that the live window goes through: those that were chosen when it was opened, else the rows of the list
// as they are now.
import QtQml
import configtools

QtObject {
    id: root

    required property var deviceFactory
    property DeviceTableModel table: null  // the list that the window was opened from
    property var chosen: []                // maps of "ipport" and "name"; empty for the rows of the list
    readonly property int count: chosen.length > 0 ? chosen.length : table?.count ?? 0
    readonly property int ticked: table?.checkedCount ?? 0

    /// Where a device stands, -1 when it is none of them.
    function placeOf(ipport) {
        if (chosen.length > 0)
            return chosen.findIndex(values => values.ipport === ipport);
        if (!table)
            return -1;
        const place = table.rowOf(deviceFactory.getDeviceInfo("dh", ipport).mac ?? "");
        return place >= 0 ? place : table.rowOf(ipport);
    }

    function at(place) {
        return chosen.length > 0 ? chosen[place] : table.get(place);
    }

    /// The next device in a direction, 1 or -1, that can be watched; null when there is none. From a device that is none
    /// of them the way begins before the first one.
    function neighbour(ipport, direction) {
        for (let place = placeOf(ipport) + direction; place >= 0 && place < count; place += direction) {
            const values = at(place);
            if (canBeWatched(values) && values.ipport !== ipport)
                return values;
        }
        return null;
    }

    /// Not one that waits for its first password, or for an address.
    function canBeWatched(values) {
        return (values.state ?? true) && /^(?!:)./.test(values.ipport ?? "");
    }

    /// The ticked devices of the list, in its order.
    function tickedDevices() {
        return (table?.checkedRows() ?? []).filter(canBeWatched);
    }
}
