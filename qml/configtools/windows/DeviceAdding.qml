// Adds devices to the list by logging in to them. It holds up the window for the waits of a login.
import QtQml

QtObject {
    id: root

    required property var deviceFactory

    enum Mode { IP, P2P }

    /// The result codes of a login that mean something here, and one for a login that was not tried.
    enum Result {
        NoLogin = 1000, Added = 0, NoSuchAccount = 1, WrongPassword = 2, NotSupported = 12, AlreadyListed = 13
    }

    /// Adds a device: "mode", "address" (an IPv4 address or a P2P ID), "account", "password", "port" (a text).
    /// Returns the result code.
    function add(device) {
        return device.mode === DeviceAdding.P2P ? addByP2p(device) : addByAddress(device);
    }

    /// What is said as an error, empty for results that nothing is said about.
    function errorText(code) {
        if (code === DeviceAdding.Added || code === DeviceAdding.NoLogin || code === DeviceAdding.NotSupported)
            return "";
        return deviceFactory.getErrorName(code);
    }

    /// What is told beside the place where a device is added, when nothing is said as an error.
    function quietText(code) {
        if (code === DeviceAdding.NoLogin) {
            const fault = deviceFactory.p2pFault();
            return qsTr("没有取得通往该设备的本地端口，请检查P2P ID和网络") + (fault !== "" ? "\n" + fault : "");
        }
        return code === DeviceAdding.NotSupported ? deviceFactory.getErrorName(code) : "";
    }

    function isListed(ipport) {
        return Object.keys(deviceFactory.getDeviceInfo("dh", ipport)).length > 0;
    }

    function addByAddress(device) {
        if (isListed(device.address + ":" + device.port))
            return DeviceAdding.AlreadyListed;
        const code = deviceFactory.getLoginDevice("dh", device.address, device.account, device.password,
                                                  device.port);
        return finish(code, 0, 0);
    }

    function addByP2p(device) {
        const port = deviceFactory.setAddDevice("dh", device.address, device.account, device.password,
                                                device.port, 0);
        if (port <= 0)
            return DeviceAdding.NoLogin;
        // A device that is in the list already is reached by the port that its row has: that one stays.
        const listed = isListed("127.0.0.1:" + port);
        const code = deviceFactory.getLoginDevice("dh", device.address, device.account, device.password,
                                                  String(port), DeviceAdding.P2P, device.port);
        return finish(code, listed && code !== DeviceAdding.Added ? 0 : port, code === DeviceAdding.Added ? webPort(device, port) : 0);
    }

    /// The local port that leads to the web page of a device that is reached by the local port `port`.
    function webPort(device, port) {
        const row = deviceFactory.getDeviceInfo("dh", "127.0.0.1:" + port);
        const detail = deviceFactory.getDeviceDetail("dh", row.mac ?? "");
        return deviceFactory.setAddDevice("dh", device.address, device.account, device.password,
                                          String(detail.httpport ?? row.httpport ?? ""), 0);
    }

    // The two ports belong to the device from here on; with a failure they go. Devices that are
    // reached by their address have none: 0 is no port, and passing it does nothing.
    function finish(code, port, webPort) {
        if (code === DeviceAdding.Added) {
            deviceFactory.addP2PPort(port, webPort);
        } else {
            deviceFactory.releaseP2PPort(port);
            deviceFactory.releaseP2PPort(webPort);
        }
        return code;
    }
}
