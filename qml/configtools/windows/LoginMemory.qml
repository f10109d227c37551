// What the windows that log in to one device after the other remember until the program ends: how often each device has
// refused a password, and the account that the user has given for all that follow.
pragma Singleton
import QtQuick

QtObject {
    id: root

    readonly property int wrongPassword: 2  // a LoginResult
    property var wrongTimes: ({})  // by address and port
    property string account
    property string password
    property var offered: null  // an account for all that follow, not tried yet: "ipport", "account", "password"

    /// Takes the result of a login. An account for all that follow counts once a device has taken it.
    function note(ipport, result) {
        if (result === wrongPassword)
            wrongTimes = Object.assign({}, wrongTimes, {[ipport]: timesWrong(ipport) + 1});
        else if (result === 0)
            wrongTimes = Object.assign({}, wrongTimes, {[ipport]: 0});
        if (offered === null || offered.ipport !== ipport)
            return;
        if (result === 0) {
            account = offered.account;
            password = offered.password;
        }
        offered = null;
    }

    function offer(ipport, account, password) {
        offered = {ipport: ipport, account: account, password: password};
    }

    function timesWrong(ipport) {
        return wrongTimes[ipport] ?? 0;
    }

    /// The one account that a device is tried with: its own, else that for all that follow, else the search settings'.
    function accountFor(row, localConfig) {
        if (row.username || row.password)
            return {user: row.username || localConfig.getSearchConfigUsrename(),
                    password: row.password || localConfig.getSearchConfigPass()};
        if (account !== "")
            return {user: account, password: password, isForAll: true};
        return {user: localConfig.getSearchConfigUsrename(), password: localConfig.getSearchConfigPass()};
    }
}
