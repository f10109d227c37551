// Adds devices to the list by logging in, in the background, see DeviceWork.addDevice().
import QtQml
import configtools

DeviceWork {
    enum Mode { IP, P2P }

    /// Result codes of a login that are handled here.
    enum Result { Added = 0, NoSuchAccount = 1, WrongPassword = 2, NotSupported = 12, AlreadyListed = 13 }

    /// Error text for the result of addDevice(), a map of "result" and "text". "" for a device that was added or
    /// supports no login, and for an outcome with its own text, which is not shown.
    function errorText(outcome) {
        return outcome.result === DeviceAdding.Added || outcome.result === DeviceAdding.NotSupported
            || outcome.text !== "" ? "" : deviceFactory.getErrorName(outcome.result);
    }
}
