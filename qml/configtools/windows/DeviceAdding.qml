// Adds devices to the list by logging in to them, on another thread.
import QtQml
import configtools

DeviceWork {
    enum Mode { IP, P2P }

    /// The result codes of a login that mean something here.
    enum Result { Added = 0, NoSuchAccount = 1, WrongPassword = 2, NotSupported = 12, AlreadyListed = 13 }

    /// What is said as an error of the value of addDevice(), empty for results that nothing is said about: a device
    /// that was added, one that takes no login, and one that no local port leads to.
    function errorText(outcome) {
        return outcome.result === DeviceAdding.Added || outcome.result === DeviceAdding.NotSupported
            || outcome.text !== "" ? "" : deviceFactory.getErrorName(outcome.result);
    }
}
