// State of logins, shared by all windows until the application exits: wrong passwords of each device, an account
// entered by the user and not tried yet, and the account list. `ipport` is "address:port" of a device.
pragma Singleton
import QtQuick

QtObject {
    id: root

    readonly property int wrongPassword: 2  // a LoginResult
    property var wrongTimes: ({})  // number of refused passwords, by "address:port"; see timesWrong()
    /// An account entered by the user and not tried yet: "ipport", "account", "password", "isForAll" (use it for all
    /// later devices), "isKept" (store it for the device), "deviceFactory". Null for none.
    property var pendingAccount: null
    property var accounts: null  // the AccountList of the application; null before the main window sets it
    signal unkept(string reason)  // an accepted account could not be stored; reason: for the user

    /// Records the result of a login, a LoginResult. A success clears the count of wrong passwords. A `pendingAccount`
    /// for this device is then used for all following devices, or stored for the device, or both, as chosen. After any
    /// other result it is dropped. It is null afterwards in each case.
    function note(ipport, result) {
        if (result === wrongPassword)
            wrongTimes = Object.assign({}, wrongTimes, {[ipport]: timesWrong(ipport) + 1});
        else if (result === 0)
            wrongTimes = Object.assign({}, wrongTimes, {[ipport]: 0});
        if (pendingAccount === null || pendingAccount.ipport !== ipport)
            return;
        if (result === 0 && pendingAccount.isForAll)
            pendingAccount.deviceFactory.setFollowingAccount("dh", pendingAccount.account, pendingAccount.password);
        const failure = result === 0 && pendingAccount.isKept ? accounts.keep(ipport, pendingAccount.account, pendingAccount.password) : "";
        pendingAccount = null;
        if (failure !== "")
            unkept(failure);
    }

    /// Remembers an account that the user has entered until note() gets the result of its login. It replaces an earlier
    /// one. Parameters: see `pendingAccount`.
    function setPendingAccount(ipport, account, password, isForAll, isKept, deviceFactory) {
        pendingAccount = {
            ipport: ipport, account: account, password: password, isForAll: isForAll, isKept: isKept,
            deviceFactory: deviceFactory
        };
    }

    /// Error text of a failed login, a LoginResult. The text for a device without a response contains its address.
    function failureText(result, ipport, deviceFactory) {
        const networkFailure = 5;
        return result === networkFailure ? qsTr("%1 没有应答").arg(ipport) : deviceFactory.getErrorName(result);
    }

    /// Number of passwords that the device has refused since its last successful login.
    function timesWrong(ipport) {
        return wrongTimes[ipport] ?? 0;
    }

    /// The account for a login to a device: a map of "user", "password" and "isForAll" (bool: the user has entered it
    /// for all following devices). It is the account of the device's row, otherwise the stored account of the device,
    /// otherwise the one for all following devices or the default one.
    function accountFor(ipport, deviceFactory) {
        const chosen = deviceFactory.accountOf("dh", ipport);
        return {user: chosen.account, password: chosen.password, isForAll: chosen.isFollowing ?? false};
    }
}
