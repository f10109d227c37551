// The search for devices: starts it, and tells whether it runs and how many it has found.
import QtQml
import configtools

QtObject {
    id: root

    required property var deviceFactory
    property int count: 0
    property bool running: false

    function start(settings) {
        count = 0;
        running = true;
        deviceFactory.setDefaultAccount("dh", settings.userName, settings.password);
        if (settings.otherDomain)
            deviceFactory.setSearchByIPInfo("dh", AddressTools.toNumber(settings.startIP),
                                            AddressTools.toNumber(settings.endIP));
        deviceFactory.startSearch("dh");
    }

    readonly property Connections reports: Connections {
        target: root.deviceFactory

        function onSignalSearchCount(devCount) {
            root.count = devCount;
        }
        function onSignalSearchDone() {
            root.running = false;
        }
    }
}
