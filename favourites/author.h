#pragma once

#include <QObject>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

class SecretVault;

/// Favourites, the devices that the user has saved: a folder with one JSON file for each of them, with an
/// encrypted password. Also has the encryption of stored passwords. Its key is part of the application, so it
/// protects against casual reading, not against a user of the application.
///
/// Paths may be "file:///" URLs. File errors are logged and not shown to the user; no password reaches the
/// log. The object is stateless; operations access the disk on the caller's thread, which may be any, but is
/// the main thread while setVault() is in use.
class CAuthor : public QObject
{
    Q_OBJECT
    QML_ELEMENT
public:
    explicit CAuthor(QObject *parent = nullptr);

    /// From now on, saveTextAsJson() also passes the password to `vault`, for all objects; null: it is only
    /// in the file. PasswordMove removes the password from the file when the vault has stored it. A file
    /// without a password then has that of `vault`. `vault` must outlive its use.
    static void setVault(SecretVault *vault);

    /// The cipher text of a password, in Base64.
    Q_INVOKABLE [[nodiscard]] QString AesEncrypt(const QString &input) const;

    /// The plain text of a result of AesEncrypt(). For any other text the result is undefined, often empty.
    Q_INVOKABLE [[nodiscard]] QString AesDecrypt(const QString &input) const;

    /// Writes the file of the device at `addr` and `port` into the folder `inputPath`. If `inputPath` is not
    /// an existing folder, the file is written into the parent folder of `inputPath`, which is created when
    /// missing. An existing file of the device is replaced. When the file cannot be written completely, the
    /// existing file is unchanged, and a warning is logged: the caller is not informed. An empty path writes
    /// nothing. `type` is "0" for a device at an address, "1" for a device behind NAT, whose `addr` is its
    /// identifier. `password` is written as given: the caller passes the result of AesEncrypt(). It is not
    /// written if the file has no password and the vault has this one. The file also contains the current
    /// time and `inputPath`.
    ///
    /// The file name is "<addr>_<port>.json". Characters that would lead out of the folder or
    /// hide the file from the list are written as "%" and two hexadecimal digits: the identifier of a device
    /// behind NAT is free text.
    Q_INVOKABLE void saveTextAsJson(const QString &inputPath, const QString &type, const QString &addr,
                                    const QString &port, const QString &username, const QString &password,
                                    const QString &note) const;

    /// The favourites of a folder, by file name without the folder. Each value is a list of six strings, the
    /// parameters of saveTextAsJson(): type, address, port, user name, encrypted password and note. Missing
    /// values are empty. Only files "*.json" with a JSON object are read; others are omitted. Empty also when
    /// the folder is missing.
    Q_INVOKABLE [[nodiscard]] QVariantMap readJsonFilesFromFolder(const QString &folderPath) const;

    /// Deletes the file of a favourite, and its password in the vault. True when the file existed and is
    /// deleted.
    Q_INVOKABLE bool deleteFile(const QString &filePath) const;

private:
    [[nodiscard]] QString vaultCipher(const QString &path) const; ///< empty if the vault has no password
};
