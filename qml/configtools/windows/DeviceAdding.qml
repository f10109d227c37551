// Adds a device to the list by logging in, in the background: addDevice() of the base class starts the login, and
// ended() has its outcome, a map of "result" and "text".
import QtQml
import configtools

DeviceWork {
    /// How the device is reached: by its address, or by its P2P ID (a device behind NAT).
    enum Mode { IP, P2P }

    /// Result codes of a login that are handled here.
    enum Result { Added = 0, NoSuchAccount = 1, WrongPassword = 2, NotSupported = 12, AlreadyListed = 13 }

    /// Error text for an outcome of ended(). "" for a device that was added or supports no login, and for an outcome
    /// with its own "text" (no local port to a P2P device can be opened): nothing is shown then.
    function errorText(outcome) {
        return outcome.result === DeviceAdding.Added || outcome.result === DeviceAdding.NotSupported
            || outcome.text !== "" ? "" : deviceFactory.getErrorName(outcome.result);
    }
}
