#pragma once

#include <QObject>
#include <QString>
#include <QUrl>

#include <qqmlregistration.h>

/// Decides what the window does with files that are dragged into it. The suffix (in upper or lower case)
/// decides, as for files that the user chooses. Main thread.
class DroppedFiles : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    enum Kind
    {
        Refused,
        List,          ///< "xlsx", "csv" or "xml": a device list that can be read without a passphrase
        EncryptedList, ///< "devlist": a device list that needs a passphrase
        SiteFile,      ///< "site"
    };
    Q_ENUM(Kind)

    /// The kind of a file with this path, by its suffix. The file need not exist.
    Q_INVOKABLE [[nodiscard]] static Kind kindOf(const QString &path);

    /// Why the window does not take the files, in the user's language; empty if it does. It takes exactly one
    /// file, which must be local, exist, not be a folder, and have a kind other than Refused.
    Q_INVOKABLE [[nodiscard]] static QString refusalOf(const QList<QUrl> &urls);

    /// The local path of the first file; empty if it is not local or there is none.
    Q_INVOKABLE [[nodiscard]] static QString pathOf(const QList<QUrl> &urls);
};
