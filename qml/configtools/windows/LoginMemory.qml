// What the windows that log in to one device after the other remember until the program ends: how often each device has
// refused a password, and the account that the user has given and that was not tried yet. It also holds the accounts that
// the user keeps, which the main window hands over.
pragma Singleton
import QtQuick

QtObject {
    id: root

    readonly property int wrongPassword: 2  // a LoginResult
    property var wrongTimes: ({})  // by address and port
    /// An account that the user has given and that was not tried yet: "ipport", "account", "password", "isForAll" (that
    /// follow), "isKept" (for the device) and "deviceFactory".
    property var offered: null
    property var accounts: null  // an AccountList; null where nothing is kept
    signal unkept(string reason)

    /// Takes the result of a login. An account for all that follow is the default one once a device has taken it, and
    /// one for the device is kept then.
    function note(ipport, result) {
        if (result === wrongPassword)
            wrongTimes = Object.assign({}, wrongTimes, {[ipport]: timesWrong(ipport) + 1});
        else if (result === 0)
            wrongTimes = Object.assign({}, wrongTimes, {[ipport]: 0});
        if (offered === null || offered.ipport !== ipport)
            return;
        if (result === 0 && offered.isForAll)
            offered.deviceFactory.setFollowingAccount("dh", offered.account, offered.password);
        const failure = result === 0 && offered.isKept ? accounts.keep(ipport, offered.account, offered.password) : "";
        offered = null;
        if (failure !== "")
            unkept(failure);
    }

    function offer(ipport, account, password, isForAll, isKept, deviceFactory) {
        offered = {
            ipport: ipport, account: account, password: password, isForAll: isForAll, isKept: isKept,
            deviceFactory: deviceFactory
        };
    }

    /// Why a login failed, for a place where no address is beside it.
    function failureText(result, ipport, deviceFactory) {
        const networkFailure = 5;
        return result === networkFailure ? qsTr("%1 没有应答").arg(ipport) : deviceFactory.getErrorName(result);
    }

    function timesWrong(ipport) {
        return wrongTimes[ipport] ?? 0;
    }

    /// The one account that a device is tried with.
    function accountFor(ipport, deviceFactory) {
        const chosen = deviceFactory.accountOf("dh", ipport);
        return {user: chosen.account, password: chosen.password, isForAll: chosen.isFollowing ?? false};
    }
}
