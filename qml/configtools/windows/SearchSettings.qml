// Reads the stored search settings as one map, and writes them. With the secret service the password is stored there,
// the other settings in the settings file.
import QtQml

QtObject {
    required property var localConfig  // a CLocalConfig: the settings of the application

    /// Returns a map of the stored settings: "localDomain" (bool: search the networks of this computer), "otherDomain"
    /// (bool: search the address range), "startIP", "endIP", "userName", "password" (the default account) and "logsIn"
    /// (bool: log in to found devices). The password is "" while the secret service has not supplied it yet.
    function read() {
        return {
            localDomain: localConfig.getSearchConfigLocalDomain() !== 0,
            otherDomain: localConfig.getSearchConfigOtherDomain() !== 0,
            startIP: localConfig.getSearchConfigStartIP(),
            endIP: localConfig.getSearchConfigEndIP(),
            userName: localConfig.getSearchConfigUsrename(),
            password: localConfig.getSearchConfigPass(),
            logsIn: localConfig.searchLogsIn()
        };
    }

    /// Stores settings in the form of read(). Returns false if reading them back gives other values.
    function write(settings) {
        localConfig.setSearchConfigStartIP(settings.startIP);
        localConfig.setSearchConfigEndIP(settings.endIP);
        localConfig.setSearchConfigUsername(settings.userName);
        localConfig.setSearchConfigPass(settings.password);
        localConfig.setSearchLogsIn(settings.logsIn);
        localConfig.setSearchConfigLocalDomain(settings.localDomain ? 1 : 0);
        localConfig.setSearchConfigOtherDomain(settings.otherDomain ? 1 : 0);
        const stored = read();
        return Object.keys(stored).every(key => stored[key] === settings[key]);
    }
}
