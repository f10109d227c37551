#pragma once

#include <QObject>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

/// The scene's way to favourites: a folder with one JSON file for each saved device, whose password is
/// enciphered. The key is built into the program, so the cipher keeps a password from being read in passing,
/// not from someone who has the program.
///
/// Paths may be "file:///" URLs. File errors are logged and never shown; no password reaches the log. The
/// object holds nothing; operations touch the disk on the caller's thread, which may be any.
class CAuthor : public QObject
{
    Q_OBJECT
    QML_ELEMENT
public:
    /// Longer files are not favourites and are left unread.
    static constexpr qint64 maximumFileSize = 1'048'576;

    explicit CAuthor(QObject *parent = nullptr);

    /// The cipher text of `input`, in Base64.
    Q_INVOKABLE [[nodiscard]] QString AesEncrypt(const QString &input) const;

    /// The reverse of AesEncrypt(). A text that did not come from it gives another text, often an empty one.
    Q_INVOKABLE [[nodiscard]] QString AesDecrypt(const QString &input) const;

    /// Writes the file of the device at `addr` and `port` into the folder `inputPath`, or, when that is no
    /// folder, into the one above it, which is created when missing. A file that the device already has is
    /// replaced; when the new one cannot be written completely, the old one stays as it is. `password` is
    /// written as given, so the caller enciphers it.
    ///
    /// The file's name is made of address and port. Characters that would lead out of the folder or hide the
    /// file from the list are written as "%" and two hexadecimal digits: the identifier of a device behind
    /// NAT is free text.
    Q_INVOKABLE void saveTextAsJson(const QString &inputPath, const QString &type, const QString &addr,
                                    const QString &port, const QString &username, const QString &password,
                                    const QString &note) const;

    /// The favourites of a folder: by file name without the folder, a list of type, address, port, user name,
    /// enciphered password and note. Files that are no favourites are left out; a value that a file lacks is
    /// empty.
    Q_INVOKABLE [[nodiscard]] QVariantMap readJsonFilesFromFolder(const QString &folderPath) const;

    /// True when the file was there and is gone.
    Q_INVOKABLE bool deleteFile(const QString &filePath) const;
};
