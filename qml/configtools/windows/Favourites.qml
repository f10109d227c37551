// The saved devices, as files in one folder. Passwords are enciphered on the way in and deciphered on the way out.
import QtQuick
import Author 1.0
import configtools

QtObject {
    id: root

    property string folder: Theme.favPath
    readonly property CAuthor author: CAuthor {}

    /// The files as they are listed: a list of texts by file name.
    function list() {
        return author.readJsonFilesFromFolder(folder);
    }

    /// Saves a device as DeviceAdding takes it, with "note". Returns its file's name, empty when it could not be
    /// saved: saving itself does not tell, so the file is read back.
    function save(device) {
        const cipher = author.AesEncrypt(device.password);
        const values = [String(device.mode), device.address, device.port, device.account, cipher, device.note];
        author.saveTextAsJson(folder, device.mode, device.address, device.port, device.account, cipher, device.note);
        const files = list();
        const isSaved = name => values.every((value, place) => value === files[name][place]);
        const own = device.address + "_" + device.port + ".json";
        if (files[own] !== undefined && isSaved(own))
            return own;
        return Object.keys(files).find(isSaved) ?? "";  // signs that no file name may hold are written otherwise
    }

    /// Returns false when there was no such file or it could not be removed.
    function remove(fileName) {
        return author.deleteFile(folder + fileName);
    }

    /// The device of a favourite of the list, ready for DeviceAdding and save().
    function deviceOf(favourite) {
        return {
            mode: favourite.mode, address: favourite.address, port: favourite.port, account: favourite.account,
            password: author.AesDecrypt(favourite.cipher), note: favourite.note
        };
    }
}
