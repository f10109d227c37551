#pragma once

#include <QObject>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

/// Favourites: a folder with one JSON file for each saved device, with an encrypted password.
/// The key is part of the application, so the encryption protects against casual reading, not against a user
/// of the application.
///
/// Paths may be "file:///" URLs. File errors are logged and never shown; no password reaches the log. The
/// object is stateless; operations access the disk on the caller's thread, which may be any.
class CAuthor : public QObject
{
    Q_OBJECT
    QML_ELEMENT
public:
    /// Bytes. Longer files are not favourites and are ignored.
    static constexpr qint64 maximumFileSize = 1'048'576;

    explicit CAuthor(QObject *parent = nullptr);

    /// The cipher text of `input`, in Base64.
    Q_INVOKABLE [[nodiscard]] QString AesEncrypt(const QString &input) const;

    /// The reverse of AesEncrypt(). For any other text the result is undefined, often empty.
    Q_INVOKABLE [[nodiscard]] QString AesDecrypt(const QString &input) const;

    /// Writes the file of the device at `addr` and `port` into the folder `inputPath`, or, when that is not a
    /// folder, into its parent folder, which is created when missing. An existing file of the device is
    /// replaced; when the new one cannot be written completely, the old one is unchanged. An empty path
    /// writes nothing. `type` is "0" for a device at an address, "1" for one behind NAT. `password` is
    /// written as given, so the caller encrypts it.
    ///
    /// The file name consists of the address and the port. Characters that would lead out of the folder or
    /// hide the file from the list are written as "%" and two hexadecimal digits: the identifier of a device
    /// behind NAT is free text.
    Q_INVOKABLE void saveTextAsJson(const QString &inputPath, const QString &type, const QString &addr,
                                    const QString &port, const QString &username, const QString &password,
                                    const QString &note) const;

    /// The favourites of a folder, by file name without the folder. Each value is a list of six strings:
    /// type, address, port, user name, encrypted password and note. Files that are not favourites are
    /// omitted; missing values are empty.
    Q_INVOKABLE [[nodiscard]] QVariantMap readJsonFilesFromFolder(const QString &folderPath) const;

    /// True when the file existed and is deleted.
    Q_INVOKABLE bool deleteFile(const QString &filePath) const;
};
