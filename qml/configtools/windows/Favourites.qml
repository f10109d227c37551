// The favourites (saved devices): a file for each in one folder. Passwords are encrypted in the files, or in the secret
// service of the desktop (see CAuthor). list(), save() and remove() access files on the main thread.
import QtQuick
import Author 1.0
import configtools

QtObject {
    id: root

    property string folder: Theme.favPath  // path that ends with "/"
    readonly property CAuthor author: CAuthor {}

    /// Returns a map of the favourites by file name (without folder). Each is a list of six texts: mode ("0" by
    /// address, "1" by P2P ID), address, port, account, encrypted password ("": not available), note. Empty without a
    /// folder.
    function list() {
        return author.readJsonFilesFromFolder(folder);
    }

    /// Saves a device: a map of "mode" (DeviceAdding.Mode), "address", "port", "account", "password" or its "cipher",
    /// and "note"; all but the mode are texts. Replaces the favourite with the same address and port. Returns the file
    /// name, "" on failure. saveTextAsJson() reports no failure, so the file is read back.
    function save(device) {
        const cipher = device.cipher ?? author.AesEncrypt(device.password);
        const values = [String(device.mode), device.address, device.port, device.account, cipher, device.note];
        author.saveTextAsJson(folder, device.mode, device.address, device.port, device.account, cipher, device.note);
        const files = list();
        const isSaved = name => values.every((value, index) => value === files[name][index]);
        const own = device.address + "_" + device.port + ".json";
        if (files[own] !== undefined && isSaved(own))
            return own;
        return Object.keys(files).find(isSaved) ?? "";  // characters that are invalid in file names are replaced
    }

    /// Deletes the file of a favourite. Returns false if it does not exist or cannot be removed.
    function remove(fileName) {
        return author.deleteFile(folder + fileName);
    }
}
